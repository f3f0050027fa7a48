// The image engine against reference libraries in the same run: the own inflate against zlib's,
// a whole PNG decode into the premultiplied surface against libspng's decode to RGBA8 (with zlib
// and with the own inflate), and the bilinear scale with blend. A benchmark "X_lib" is the
// reference for "X"; the argument is the picture's height.
#include <benchmark/benchmark.h>
#include <spng.h>
#include <zlib.h>

#include "bench_images.h"
#include "image/Inflate.h"
#include "image/PngLayout.h"
#include "image/ZlibLibrary.h"
#include "image/cPNGparser.h"

namespace {

using namespace orvanta;
using bench::Picture;

std::size_t unpackedSize(Picture kind) {
    const PngHeader header{bench::kWidth, bench::kHeight, 8,
                           static_cast<std::uint8_t>(kind == Picture::Screenshot ? 2
                                                     : kind == Picture::Photo    ? 2
                                                                                 : 6),
                           0};
    return static_cast<std::size_t>(pngUnpackedSize(header));
}

template <Picture Kind>
void inflate(benchmark::State& state) {
    const auto stream = bench::zlibStream(bench::pictureFile(Kind));
    std::vector<std::uint8_t> out(unpackedSize(Kind));
    for (auto _ : state) {
        std::size_t written = 0;
        benchmark::DoNotOptimize(inflateStream(stream, out, written));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * out.size()));
}

template <Picture Kind>
void inflate_zlib(benchmark::State& state) {
    const auto stream = bench::zlibStream(bench::pictureFile(Kind));
    std::vector<std::uint8_t> out(unpackedSize(Kind));
    for (auto _ : state) {
        uLongf size = static_cast<uLongf>(out.size());
        benchmark::DoNotOptimize(
            uncompress(out.data(), &size, stream.data(), static_cast<uLong>(stream.size())));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * out.size()));
}

// Output throughput: the surface's bytes a second.
template <Picture Kind, bool WithZlib>
void png_decode(benchmark::State& state) {
    const auto& file = bench::pictureFile(Kind);
    ZlibLibrary::setDisabled(!WithZlib);
    c32bppDIB surface;
    for (auto _ : state) benchmark::DoNotOptimize(cPNGparser().LoadStream(file, surface));
    ZlibLibrary::setDisabled(false);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bench::kWidth * bench::kHeight *
                            4);
}

template <Picture Kind>
void png_decode_libspng(benchmark::State& state) {
    const auto& file = bench::pictureFile(Kind);
    std::vector<std::uint8_t> out(static_cast<std::size_t>(bench::kWidth) * bench::kHeight * 4);
    for (auto _ : state) {
        spng_ctx* ctx = spng_ctx_new(0);
        spng_set_png_buffer(ctx, file.data(), file.size());
        benchmark::DoNotOptimize(spng_decode_image(ctx, out.data(), out.size(), SPNG_FMT_RGBA8, 0));
        spng_ctx_free(ctx);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * out.size()));
}

// Destination pixels a second, counted as "bytes" so that the figure reads as pixels.
void scale_blend_bilinear(benchmark::State& state) {
    c32bppDIB source, target;
    bench::paint(source, Picture::PhotoAlpha);
    source.setHighQualityInterpolation(true);
    target.InitializeDIB(640, 480);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            source.Render(nullptr, 0, 0, 640, 480, 0, 0, 0, 0, 100, true, true, &target));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * 640 * 480);
    state.counters["dest_pixels_per_second"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * 640 * 480, benchmark::Counter::kIsRate);
}

void registerAll() {
    constexpr int h = bench::kHeight;
    benchmark::RegisterBenchmark("inflate_photo_zlib", inflate_zlib<Picture::Photo>)->Arg(h);
    benchmark::RegisterBenchmark("inflate_photo", inflate<Picture::Photo>)->Arg(h);
    benchmark::RegisterBenchmark("inflate_photoalpha_zlib", inflate_zlib<Picture::PhotoAlpha>)->Arg(h);
    benchmark::RegisterBenchmark("inflate_photoalpha", inflate<Picture::PhotoAlpha>)->Arg(h);
    benchmark::RegisterBenchmark("inflate_screenshot_zlib", inflate_zlib<Picture::Screenshot>)->Arg(h);
    benchmark::RegisterBenchmark("inflate_screenshot", inflate<Picture::Screenshot>)->Arg(h);
    benchmark::RegisterBenchmark("png_decode_photo_libspng", png_decode_libspng<Picture::Photo>)->Arg(h);
    benchmark::RegisterBenchmark("png_decode_photo", png_decode<Picture::Photo, false>)->Arg(h);
    benchmark::RegisterBenchmark("png_decode_withzlib_photo_libspng", png_decode_libspng<Picture::Photo>)
        ->Arg(h);
    benchmark::RegisterBenchmark("png_decode_withzlib_photo", png_decode<Picture::Photo, true>)->Arg(h);
    benchmark::RegisterBenchmark("png_decode_photoalpha_libspng", png_decode_libspng<Picture::PhotoAlpha>)
        ->Arg(h);
    benchmark::RegisterBenchmark("png_decode_photoalpha", png_decode<Picture::PhotoAlpha, false>)->Arg(h);
    benchmark::RegisterBenchmark("png_decode_screenshot_libspng", png_decode_libspng<Picture::Screenshot>)
        ->Arg(h);
    benchmark::RegisterBenchmark("png_decode_screenshot", png_decode<Picture::Screenshot, false>)->Arg(h);
    benchmark::RegisterBenchmark("scale_blend_bilinear_1920x1080_to_640x480", scale_blend_bilinear);
}

}  // namespace

int main(int argc, char** argv) {
    registerAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
