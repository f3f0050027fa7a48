#pragma once
// The built-in commands of the command processor that work on single files and folders. Each
// returns the error level the line leaves, and writes cmd.exe's own words on failure.

#include "ovcmd/CommandContext.h"

namespace orvanta {

// "copy [/b] a [+ b ...] [destination]": the sources joined into the destination.
int runCopy(CommandContext& context, const std::vector<std::string>& words);
// "del [/q] [/f] names": files, wildcards, or the files of a named folder.
int runDelete(CommandContext& context, const std::vector<std::string>& words);
// "rd [/s] [/q] folders": with /s the whole tree, without it only an empty folder.
int runRemoveFolder(CommandContext& context, const std::vector<std::string>& words);
// "md folders": every missing folder of each path.
int runMakeFolder(CommandContext& context, const std::vector<std::string>& words);
// "attrib [+r|-r|+h|-h|+s|-s|+a|-a] names".
int runAttrib(CommandContext& context, const std::vector<std::string>& words);

}  // namespace orvanta
