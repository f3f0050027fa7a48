#include "project/DependencyList.h"

#include "project/LineFile.h"
#include "project/NumberText.h"

namespace orvanta {

std::string dependencyListText(const std::vector<Dependency>& dependencies) {
    std::string text;
    for (const auto& dependency : dependencies) {
        appendLine(text, dependency.name);
        appendLine(text, numberLine(dependency.selected ? 1 : 0));
    }
    return text;
}

bool writeDependencyList(Host& host, const std::string& path, const std::vector<Dependency>& dependencies) {
    return host.writeFileAtomic(path, dependencyListText(dependencies));
}

std::vector<Dependency> readDependencyList(Host& host, const std::string& path) {
    std::vector<Dependency> dependencies;
    const auto lines = readLines(host, path, 2 * kDependencyPairs);
    if (!lines) return dependencies;
    for (std::size_t i = 0; i < lines->size(); i += 2) {
        const auto flag = i + 1 < lines->size() ? parseFlag((*lines)[i + 1]) : std::nullopt;
        dependencies.push_back({(*lines)[i], flag.value_or(0) != 0});
    }
    return dependencies;
}

}  // namespace orvanta
