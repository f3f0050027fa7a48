#include <dlfcn.h>

#include "platform/SharedLibrary.h"

namespace orvanta {

namespace {

class PosixSharedLibrary final : public SharedLibrary {
public:
    explicit PosixSharedLibrary(void* handle) : handle_(handle) {}
    ~PosixSharedLibrary() override { dlclose(handle_); }
    PosixSharedLibrary(const PosixSharedLibrary&) = delete;
    PosixSharedLibrary& operator=(const PosixSharedLibrary&) = delete;

    LibraryFunction function(const std::string& name) const override {
        return reinterpret_cast<LibraryFunction>(dlsym(handle_, name.c_str()));
    }

private:
    void* handle_;
};

}  // namespace

std::unique_ptr<SharedLibrary> loadSharedLibrary(const std::string& name) {
    void* handle = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return nullptr;
    return std::make_unique<PosixSharedLibrary>(handle);
}

std::vector<LibraryName> zlibLibraryNames() {
    // The versioned name is what the runtime package installs; the bare one only comes with -dev.
    return {{"libz.so.1", 2}, {"libz.so", 1}};
}

}  // namespace orvanta
