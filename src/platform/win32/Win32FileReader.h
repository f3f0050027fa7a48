#pragma once
// Sequential reading of an open Windows file handle, which the reader closes.

#include <windows.h>

#include "platform/Host.h"

namespace orvanta {

class Win32FileReader : public FileReader {
public:
    explicit Win32FileReader(HANDLE file) : file_(file) {}
    ~Win32FileReader() override { CloseHandle(file_); }
    Win32FileReader(const Win32FileReader&) = delete;
    Win32FileReader& operator=(const Win32FileReader&) = delete;

    std::size_t read(void* buffer, std::size_t size) override {
        if (failed_ || size == 0) return 0;
        // ReadFile takes a 32-bit count; a larger request is simply served in part.
        const auto wanted = static_cast<DWORD>(size > 0x40000000 ? 0x40000000 : size);
        DWORD got = 0;
        if (!ReadFile(file_, buffer, wanted, &got, nullptr)) failed_ = true;
        return failed_ ? 0 : got;
    }
    bool failed() const override { return failed_; }

private:
    HANDLE file_;
    bool failed_ = false;
};

}  // namespace orvanta
