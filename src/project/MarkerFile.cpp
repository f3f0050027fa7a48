#include "project/MarkerFile.h"

#include "project/LineFile.h"
#include "project/ProjectPaths.h"

namespace orvanta {

namespace {
constexpr std::size_t kMarkerLines = 5;
}  // namespace

std::string markerText(const std::string& appName) {
    return linesText(
        {appName, std::string(kMarkerNoEditions), std::string(kMarkerNoVersions), "deployLocal", "f"});
}

bool writeMarker(Host& host, const std::string& path, const std::string& appName) {
    return host.writeFileAtomic(path, markerText(appName));
}

std::optional<Marker> readMarker(Host& host, const std::string& path) {
    auto lines = readLines(host, path, kMarkerLines);
    if (!lines) return std::nullopt;
    lines->resize(kMarkerLines);
    auto& l = *lines;
    return Marker{l[0], l[1], l[2], l[3], l[4]};
}

}  // namespace orvanta
