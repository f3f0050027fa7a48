#include "platform/posix/DosAttributes.h"

#include <sys/xattr.h>

#include <cstdio>
#include <cstdlib>

#include "platform/Host.h"

namespace orvanta {

namespace {

constexpr const char* kAttributeName = "user.DOSATTRIB";
constexpr std::uint32_t kKeptBits = kAttributeHidden | kAttributeSystem;

}  // namespace

std::uint32_t readDosAttributes(const std::string& hostPath) {
    char text[64] = {};
    const ssize_t length = ::getxattr(hostPath.c_str(), kAttributeName, text, sizeof text - 1);
    if (length <= 2 || text[0] != '0' || (text[1] != 'x' && text[1] != 'X')) return 0;
    char* end = nullptr;
    const unsigned long value = std::strtoul(text + 2, &end, 16);
    if (end == text + 2) return 0;
    return static_cast<std::uint32_t>(value) & kKeptBits;
}

void writeDosAttributes(const std::string& hostPath, std::uint32_t attributes) {
    const std::uint32_t kept = attributes & kKeptBits;
    if (kept == 0) {
        ::removexattr(hostPath.c_str(), kAttributeName);
        return;
    }
    char text[16];
    const int length = std::snprintf(text, sizeof text, "0x%x", static_cast<unsigned>(kept));
    ::setxattr(hostPath.c_str(), kAttributeName, text, static_cast<std::size_t>(length), 0);
}

}  // namespace orvanta
