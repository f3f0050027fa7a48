#include "image/cCDECL.h"

namespace orvanta {

namespace {

using P = std::intptr_t;

// Every argument travels in an integer register or slot of the host's width, so a function of up
// to five integer or pointer parameters can be called through these types.
std::int32_t invoke(LibraryFunction function, std::span<const P> p) {
    P result = 0;
    switch (p.size()) {
        case 0:
            result = reinterpret_cast<P (*)()>(function)();
            break;
        case 1:
            result = reinterpret_cast<P (*)(P)>(function)(p[0]);
            break;
        case 2:
            result = reinterpret_cast<P (*)(P, P)>(function)(p[0], p[1]);
            break;
        case 3:
            result = reinterpret_cast<P (*)(P, P, P)>(function)(p[0], p[1], p[2]);
            break;
        case 4:
            result = reinterpret_cast<P (*)(P, P, P, P)>(function)(p[0], p[1], p[2], p[3]);
            break;
        default:
            result = reinterpret_cast<P (*)(P, P, P, P, P)>(function)(p[0], p[1], p[2], p[3], p[4]);
            break;
    }
    // Only the low 32 bits are the function's: the rest of the register is undefined.
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uintptr_t>(result)));
}

}  // namespace

bool cCDECL::DllLoad(const std::string& libraryName) {
    DllUnload();
    library_ = loadSharedLibrary(libraryName);
    return library_ != nullptr;
}

void cCDECL::DllUnload() {
    library_.reset();
    lastName_.clear();
    lastFunction_ = nullptr;
}

bool cCDECL::hasFunction(const std::string& name) const {
    return library_ != nullptr && library_->function(name) != nullptr;
}

void cCDECL::raise(const std::string& description, std::uint32_t number) {
    lastError_ = description;
    throw CdeclError(description, number);
}

std::int32_t cCDECL::CallFunc(const std::string& name, std::span<const std::intptr_t> parameters) {
    if (library_ == nullptr) raise("DLL not loaded", kCdeclNotLoaded);
    if (name != lastName_ || lastFunction_ == nullptr) {
        lastFunction_ = library_->function(name);
        lastName_ = name;
        if (lastFunction_ == nullptr) raise("Failed to locate function: " + name, kCdeclFunctionNotFound);
    }
    if (parameters.size() > kMaxParameters) raise("Too many parameters", kCdeclTooManyParameters);
    return invoke(lastFunction_, parameters);
}

}  // namespace orvanta
