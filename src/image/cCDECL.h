#pragma once
// Calls a named function of a library loaded at run time, with up to five arguments of this host's
// width. The engine reaches zlib through it, so that it runs where no zlib is installed.

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "platform/SharedLibrary.h"

namespace orvanta {

inline constexpr std::uint32_t kCdeclNotLoaded = 0x80040000;
inline constexpr std::uint32_t kCdeclFunctionNotFound = 0x80040001;
inline constexpr std::uint32_t kCdeclTooManyParameters = 0x80040002;

// What CallFunc raises: the text, the source "cCDECL" and the error number.
class CdeclError : public std::runtime_error {
public:
    CdeclError(const std::string& description, std::uint32_t number)
        : std::runtime_error(description), number_(number) {}
    std::uint32_t number() const { return number_; }
    static const char* source() { return "cCDECL"; }

private:
    std::uint32_t number_;
};

class cCDECL {
public:
    static constexpr std::size_t kMaxParameters = 5;

    bool DllLoad(const std::string& libraryName);
    void DllUnload();
    bool loaded() const { return library_ != nullptr; }
    // True if the loaded library exports `name`; raises nothing.
    bool hasFunction(const std::string& name) const;

    // Calls `name` and returns its 32-bit result. Raises CdeclError when no library is loaded, the
    // function is missing, or more than five parameters are given.
    std::int32_t CallFunc(const std::string& name, std::span<const std::intptr_t> parameters);
    template <typename... Arguments>
    std::int32_t CallFunc(const std::string& name, Arguments... arguments) {
        const std::array<std::intptr_t, sizeof...(Arguments)> values{toParameter(arguments)...};
        return CallFunc(name, std::span<const std::intptr_t>(values.data(), values.size()));
    }

    const std::string& LastError() const { return lastError_; }

private:
    template <typename T>
    static std::intptr_t toParameter(T value) {
        if constexpr (std::is_pointer_v<T>)
            return reinterpret_cast<std::intptr_t>(value);
        else
            return static_cast<std::intptr_t>(value);
    }
    [[noreturn]] void raise(const std::string& description, std::uint32_t number);

    std::unique_ptr<SharedLibrary> library_;
    std::string lastName_;
    LibraryFunction lastFunction_ = nullptr;
    std::string lastError_;
};

}  // namespace orvanta
