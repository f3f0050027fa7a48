#include "image/HuffmanTree.h"

#include <algorithm>
#include <limits>

namespace orvanta {

namespace {

constexpr std::size_t kMaxNodes = 511;  // 256 leaves and 255 inner nodes

struct BuildNode {
    std::uint64_t weight = 0;
    std::int32_t parent = -1;
    std::int32_t left = -1;
    std::int32_t right = -1;
    bool free = true;
};

// The free node of least weight, the first in table order among equals; -1 if none is free.
std::int32_t takeLightest(std::vector<BuildNode>& nodes) {
    std::int32_t best = -1;
    std::uint64_t weight = std::numeric_limits<std::uint64_t>::max();
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].free && (best < 0 || nodes[i].weight < weight)) {
            best = static_cast<std::int32_t>(i);
            weight = nodes[i].weight;
        }
    }
    if (best >= 0) nodes[static_cast<std::size_t>(best)].free = false;
    return best;
}

HuffmanCode codeOf(const std::vector<BuildNode>& nodes, std::int32_t leaf) {
    HuffmanCode bits;
    for (std::int32_t node = leaf; nodes[static_cast<std::size_t>(node)].parent >= 0;) {
        const std::int32_t parent = nodes[static_cast<std::size_t>(node)].parent;
        bits.push_back(nodes[static_cast<std::size_t>(parent)].right == node ? 1 : 0);
        node = parent;
    }
    std::reverse(bits.begin(), bits.end());
    return bits;
}

}  // namespace

HuffmanCodeTable buildHuffmanCodes(const std::array<std::uint64_t, 256>& counts) {
    std::vector<BuildNode> nodes;
    nodes.reserve(kMaxNodes);
    std::array<std::int32_t, 256> leafOf{};
    for (std::size_t value = 0; value < 256; ++value) {
        leafOf[value] = -1;
        if (counts[value] == 0) continue;
        leafOf[value] = static_cast<std::int32_t>(nodes.size());
        nodes.push_back({counts[value], -1, -1, -1, true});
    }
    for (std::size_t leaves = nodes.size(); leaves > 1; --leaves) {
        const std::int32_t left = takeLightest(nodes), right = takeLightest(nodes);
        const auto joined = static_cast<std::int32_t>(nodes.size());
        const std::uint64_t weight =
            nodes[static_cast<std::size_t>(left)].weight + nodes[static_cast<std::size_t>(right)].weight;
        nodes.push_back({weight, -1, left, right, true});
        nodes[static_cast<std::size_t>(left)].parent = nodes[static_cast<std::size_t>(right)].parent = joined;
    }
    HuffmanCodeTable codes;
    for (std::size_t value = 0; value < 256; ++value)
        if (leafOf[value] >= 0) codes[value] = codeOf(nodes, leafOf[value]);
    return codes;
}

HuffmanDecodingTree::HuffmanDecodingTree() {
    nodes_.reserve(kMaxNodes);
    nodes_.emplace_back();
}

bool HuffmanDecodingTree::add(std::uint8_t symbol, std::span<const std::uint8_t> bits) {
    if (bits.empty()) return false;
    std::size_t node = 0;
    for (const std::uint8_t bit : bits) {
        if (nodes_[node].symbol >= 0 || bit > 1) return false;
        std::int32_t next = nodes_[node].children[bit];
        if (next == kMissing) {
            if (nodes_.size() >= kMaxNodes) return false;
            next = static_cast<std::int32_t>(nodes_.size());
            nodes_[node].children[bit] = next;
            nodes_.emplace_back();
        }
        node = static_cast<std::size_t>(next);
    }
    const Node& leaf = nodes_[node];
    if (leaf.symbol >= 0 || leaf.children[0] != kMissing || leaf.children[1] != kMissing) return false;
    nodes_[node].symbol = symbol;
    return true;
}

}  // namespace orvanta
