#include <windows.h>

#include "platform/SharedLibrary.h"

namespace orvanta {

namespace {

class Win32SharedLibrary final : public SharedLibrary {
public:
    explicit Win32SharedLibrary(HMODULE module) : module_(module) {}
    ~Win32SharedLibrary() override { FreeLibrary(module_); }
    Win32SharedLibrary(const Win32SharedLibrary&) = delete;
    Win32SharedLibrary& operator=(const Win32SharedLibrary&) = delete;

    LibraryFunction function(const std::string& name) const override {
        return reinterpret_cast<LibraryFunction>(GetProcAddress(module_, name.c_str()));
    }

private:
    HMODULE module_;
};

}  // namespace

std::unique_ptr<SharedLibrary> loadSharedLibrary(const std::string& name) {
    HMODULE module = LoadLibraryA(name.c_str());
    if (module == nullptr) return nullptr;
    return std::make_unique<Win32SharedLibrary>(module);
}

std::vector<LibraryName> zlibLibraryNames() {
    return {{"zlib1.dll", 2}, {"zlib.dll", 1}};
}

}  // namespace orvanta
