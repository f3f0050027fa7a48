#pragma once
// The Windows attributes that POSIX permissions cannot hold (hidden, system) live in the extended
// attribute "user.DOSATTRIB" as the text "0x<hex>", which is where wine and Samba keep them too.
// On a file system without user attributes they are accepted and forgotten.

#include <cstdint>
#include <string>

namespace orvanta {

// Hidden and system bits of the host file; 0 when none are kept.
std::uint32_t readDosAttributes(const std::string& hostPath);
// Keeps the hidden and system bits of `attributes`; removes the record when both are clear.
void writeDosAttributes(const std::string& hostPath, std::uint32_t attributes);

}  // namespace orvanta
