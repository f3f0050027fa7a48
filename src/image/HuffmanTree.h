#pragma once
// The code tree of the static Huffman coder: built from byte counts for encoding, rebuilt from the
// stored codes for decoding.

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace orvanta {

// The bits of one code, 0 or 1 a byte, first bit first; empty for a byte value that does not occur.
using HuffmanCode = std::vector<std::uint8_t>;
using HuffmanCodeTable = std::array<HuffmanCode, 256>;

// Codes for the given counts. Among equal weights the node first in the table is taken first, and
// the first node taken goes left (bit 0). A single value gets a code of no bits.
HuffmanCodeTable buildHuffmanCodes(const std::array<std::uint64_t, 256>& counts);

class HuffmanDecodingTree {
public:
    static constexpr std::int32_t kMissing = -1;

    HuffmanDecodingTree();
    // Adds the path of one code of at least one bit; false if it runs through or onto a code already
    // there, or the tree would outgrow 256 leaves.
    bool add(std::uint8_t symbol, std::span<const std::uint8_t> bits);
    std::int32_t root() const { return 0; }
    // The node one bit below `node`, or kMissing.
    std::int32_t child(std::int32_t node, std::uint32_t bit) const {
        return nodes_[static_cast<std::size_t>(node)].children[bit];
    }
    bool isLeaf(std::int32_t node) const { return nodes_[static_cast<std::size_t>(node)].symbol >= 0; }
    std::uint8_t symbol(std::int32_t node) const {
        return static_cast<std::uint8_t>(nodes_[static_cast<std::size_t>(node)].symbol);
    }

private:
    struct Node {
        std::array<std::int32_t, 2> children{kMissing, kMissing};
        std::int32_t symbol = kMissing;
    };
    std::vector<Node> nodes_;
};

}  // namespace orvanta
