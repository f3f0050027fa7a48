#pragma once
// Replacing a file so that a crash leaves either the old or the new one: the contents go to a
// temporary beside the target, are synced, and the temporary is renamed over the target.

#include <functional>
#include <string>
#include <string_view>

namespace orvanta {

// Writes the bytes into the open descriptor; false on any failure.
using FileFiller = std::function<bool(int fd)>;

// `target` is a host path. The temporary never outlives a failed call. The new file gets
// `mode` (before the umask) unless it replaces a file, whose permissions it then keeps.
bool replaceFileAtomically(const std::string& target, const FileFiller& fill, unsigned mode = 0644);
bool replaceFileAtomically(const std::string& target, std::string_view contents, unsigned mode = 0644);

// write(2) until done, retrying interrupted calls.
bool writeAll(int fd, const char* data, std::size_t size);

}  // namespace orvanta
