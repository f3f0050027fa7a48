"""Prints "ratio NAME VALUE" for each benchmark of ours that has a reference in the same run.

A reference is named after ours plus "_" and the library, and takes the same argument:
crc32_CalculateBytes_zlib/65536 is the reference of crc32_CalculateBytes/65536. The ratio is
named after ours and the argument (crc32_CalculateBytes_64KiB); a reference other than zlib adds
its name. An argument of 0 adds nothing to the name. Benchmarks that count items instead of bytes
(project_save/100000 against project_save_listing/100000, items being files) compare items per
second and keep the count as it stands in the name. A whole build against the archiver's own work
(build_package/100000 against build_package_archiver/100000) can reach 1 at best: the ratio is the
archiver's share of the build. The figures come first, the ratio lines last.
"""
import json
import sys

REFERENCES = ("zlib", "libdeflate", "libspng", "libpng", "qt", "listing", "sizedlisting", "getline", "archiver")


def size_name(argument):
    size = int(argument)
    if size >= 1 << 20 and size % (1 << 20) == 0:
        return f"{size >> 20}MiB"
    if size >= 1 << 10 and size % (1 << 10) == 0:
        return f"{size >> 10}KiB"
    return f"{size}B"


def load(paths):
    speeds = {}
    for path in paths:
        try:
            with open(path) as handle:
                runs = json.load(handle).get("benchmarks", [])
        except (OSError, ValueError):
            continue  # a program whose benchmarks the filter left out writes nothing useful
        for run in runs:
            if "bytes_per_second" in run:
                speeds[run["name"].removesuffix("/real_time")] = (run["bytes_per_second"], "bytes")
            elif "items_per_second" in run:
                speeds[run["name"].removesuffix("/real_time")] = (run["items_per_second"], "items")
    return speeds


def comparisons(speeds):
    for name, (theirs, unit) in speeds.items():
        function, _, argument = name.partition("/")
        base, _, library = function.rpartition("_")
        if library not in REFERENCES or not argument:
            continue
        ours, our_unit = speeds.get(f"{base}/{argument}", (None, None))
        if ours and our_unit == unit:
            suffix = "" if library == "zlib" else f"_{library}"
            # An argument of 0 only pairs the two; the name says the size already.
            amount = size_name(argument) if unit == "bytes" else argument
            name = base if argument == "0" else f"{base}_{amount}"
            yield f"{name}{suffix}", library, unit, ours, theirs


def describe(speed, unit):
    if unit == "bytes":
        return f"{speed / 1e9:.2f} GB/s"
    return f"{speed / 1e6:.3f} M/s"


def main(paths):
    results = sorted(comparisons(load(paths)))
    for label, library, unit, ours, theirs in results:
        print(f"# {label}: ours {describe(ours, unit)}, {library} {describe(theirs, unit)}")
    for label, _, _, ours, theirs in results:
        print(f"ratio {label} {ours / theirs:.2f}")


if __name__ == "__main__":
    main(sys.argv[1:])
