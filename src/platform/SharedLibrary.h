#pragma once
// A library loaded at run time (dlopen here, LoadLibraryA on Windows), and the names under which
// this host's zlib is found. The image engine works without zlib, so nothing links it.

#include <memory>
#include <string>
#include <vector>

namespace orvanta {

// Any exported function, before the caller gives it its real type.
using LibraryFunction = void (*)();

class SharedLibrary {
public:
    virtual ~SharedLibrary() = default;
    // nullptr when the library does not export `name`.
    virtual LibraryFunction function(const std::string& name) const = 0;
};

// nullptr when the library cannot be loaded.
std::unique_ptr<SharedLibrary> loadSharedLibrary(const std::string& name);

// The names to try for zlib, best first, each with its kind (2 for the name the zlib project
// ships today, 1 for the older one).
struct LibraryName {
    std::string name;
    int kind = 0;
};
std::vector<LibraryName> zlibLibraryNames();

}  // namespace orvanta
