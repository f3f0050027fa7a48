// CRC-32 of clsCRC against zlib's crc32 over the same buffers, in one run. A benchmark named
// "X_zlib" is the reference for "X"; scripts/bench prints their ratio.
#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <vector>

#include "core/Crc32Folding.h"
#include "core/Crc32Kernel.h"
#include "core/clsCRC.h"

namespace {

constexpr std::int64_t k64KiB = 64 << 10;
constexpr std::int64_t k64MiB = 64 << 20;

const std::vector<std::uint8_t>& buffer(std::size_t size) {
    static std::vector<std::uint8_t> data;
    if (data.size() < size) {
        data.resize(size);
        std::mt19937 generator(42);
        for (auto& byte : data) byte = static_cast<std::uint8_t>(generator());
    }
    return data;
}

void setThroughput(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

// A folder of its own in the temporary folder: the host's data and the file that is hashed.
class TempFolder {
public:
    TempFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("orvanta-crc-bench-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() { std::filesystem::remove_all(path_); }
    std::filesystem::path file(std::size_t size) const {
        const auto path = path_ / ("data-" + std::to_string(size) + ".bin");
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(buffer(size).data()), static_cast<std::streamsize>(size));
        return path;
    }
    std::unique_ptr<orvanta::Host> host() const {
        orvanta::HostConfig config;
        config.dataFolder = (path_ / "host").string();
        return orvanta::createHost(config);
    }

private:
    std::filesystem::path path_;
};

void crc32_CalculateBytes(benchmark::State& state) {
    const auto& data = buffer(static_cast<std::size_t>(state.range(0)));
    const TempFolder folder;
    const auto host = folder.host();
    orvanta::clsCRC crc(*host);
    const std::span<const std::uint8_t> bytes(data.data(), static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(crc.CalculateBytes(bytes));
    setThroughput(state);
}

void crc32_CalculateBytes_zlib(benchmark::State& state) {
    const auto& data = buffer(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(crc32(0, data.data(), static_cast<uInt>(state.range(0))));
    setThroughput(state);
}

void crc32_CalculateFile(benchmark::State& state) {
    const TempFolder folder;
    const auto file = folder.file(static_cast<std::size_t>(state.range(0)));
    const auto host = folder.host();
    orvanta::clsCRC crc(*host);
    const std::string path = host->toWindowsPath(file.string());
    for (auto _ : state) benchmark::DoNotOptimize(crc.CalculateFile(path));
    setThroughput(state);
}

// The same file read with stdio in 1 MiB pieces and hashed by zlib.
void crc32_CalculateFile_zlib(benchmark::State& state) {
    const TempFolder folder;
    const auto file = folder.file(static_cast<std::size_t>(state.range(0)));
    std::vector<std::uint8_t> chunk(1 << 20);
    for (auto _ : state) {
        std::FILE* in = std::fopen(file.string().c_str(), "rb");
        uLong value = crc32(0, nullptr, 0);
        while (const std::size_t got = std::fread(chunk.data(), 1, chunk.size(), in))
            value = crc32(value, chunk.data(), static_cast<uInt>(got));
        std::fclose(in);
        benchmark::DoNotOptimize(value);
    }
    setThroughput(state);
}

// Each path of the kernel on its own, to show what the dispatch gains on this machine.
template <auto Update>
void crc32_kernel(benchmark::State& state) {
    const auto& data = buffer(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(Update(0xFFFFFFFFu, data.data(), static_cast<std::size_t>(state.range(0))));
    setThroughput(state);
}

void registerKernels() {
    namespace crc32 = orvanta::crc32;
    benchmark::RegisterBenchmark("crc32_kernel_bytewise", crc32_kernel<crc32::updateBytewise>)->Arg(k64KiB);
    benchmark::RegisterBenchmark("crc32_kernel_sliced", crc32_kernel<crc32::updateSliced>)->Arg(k64KiB);
    if (crc32::folding::available())
        benchmark::RegisterBenchmark("crc32_kernel_pclmulqdq", crc32_kernel<crc32::folding::update>)
            ->Arg(k64KiB);
    if (crc32::folding::available256())
        benchmark::RegisterBenchmark("crc32_kernel_vpclmulqdq256", crc32_kernel<crc32::folding::update256>)
            ->Arg(k64KiB);
    if (crc32::folding::available512())
        benchmark::RegisterBenchmark("crc32_kernel_vpclmulqdq512", crc32_kernel<crc32::folding::update512>)
            ->Arg(k64KiB);
}

}  // namespace

BENCHMARK(crc32_CalculateBytes_zlib)->Arg(k64KiB)->Arg(k64MiB);
BENCHMARK(crc32_CalculateBytes)->Arg(k64KiB)->Arg(k64MiB);
BENCHMARK(crc32_CalculateFile_zlib)->Arg(k64KiB)->Arg(k64MiB);
BENCHMARK(crc32_CalculateFile)->Arg(k64KiB)->Arg(k64MiB);

int main(int argc, char** argv) {
    registerKernels();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
