#pragma once
// The project marker "<appName>.ovproj": five lines, the name and four constant words.

#include <optional>
#include <string>

#include "platform/Host.h"

namespace orvanta {

struct Marker {
    std::string appName;
    std::string editionWord;  // "No Editions" as written
    std::string versionWord;  // "No Versions" as written
    std::string deployment;   // "deployLocal"
    std::string lastWord;     // "f"
};

std::string markerText(const std::string& appName);
bool writeMarker(Host& host, const std::string& path, const std::string& appName);

// The five lines as they stand; missing lines read as empty. Nothing if the file cannot be opened.
std::optional<Marker> readMarker(Host& host, const std::string& path);

}  // namespace orvanta
