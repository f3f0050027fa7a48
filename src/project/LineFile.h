#pragma once
// Project files are lines of ANSI text. Readers take CR LF and lone LF as line ends and stop after
// the lines their buffer holds; writers end every line with CR LF.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

// The loader's buffers.
inline constexpr std::size_t kShortListLines = 51;
inline constexpr std::size_t kContentListLines = 100'001;

// The first `maxLines` lines of a file, read in pieces so that a long file is not read whole.
// Text after the last line end counts as a line. Nothing when the file cannot be opened.
std::optional<std::vector<std::string>> readLines(Host& host, const std::string& path, std::size_t maxLines);

// A line a reader could not take as it stands (numbered from 1), and what it took instead.
struct DamagedLine {
    std::size_t line = 0;
    std::string note;

    friend bool operator==(const DamagedLine&, const DamagedLine&) = default;
};
using DamagedLines = std::vector<DamagedLine>;

inline constexpr const char* kControlBytesLeftOut = "control characters left out";

// No control byte (below 0x20) reaches a project file but the CR LF that ends a line: the writers
// leave them out, and the readers drop them from what they read.
bool isControlByte(char c);
// Removes the control bytes of a line; true if there were any.
bool removeControlBytes(std::string& line);

// The line plus CR LF, appended to `out`, without its control bytes.
void appendLine(std::string& out, std::string_view line);
// Every line with its CR LF.
std::string linesText(const std::vector<std::string>& lines);

}  // namespace orvanta
