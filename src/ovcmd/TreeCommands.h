#pragma once
// The built-in commands of the command processor that walk folder trees.

#include "ovcmd/CommandContext.h"

namespace orvanta {

// "xcopy [/s] [/e] [/d] [/h] source destination": the files of a folder (or those matching a
// pattern) into the destination folder, which is made when missing. /s walks the subfolders
// that hold files, /e the empty ones too, /d copies only files newer than their copy, /h takes
// hidden and system files as well.
int runXcopy(CommandContext& context, const std::vector<std::string>& words);
// "dir /b [/s] [pattern]": bare names, or with /s the full path of everything below.
int runDir(CommandContext& context, const std::vector<std::string>& words);

}  // namespace orvanta
