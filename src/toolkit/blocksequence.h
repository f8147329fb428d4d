#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace toolkit {

// A sequence of small elements that takes and loses them anywhere while only those of one block
// move, so that many in no order cost little more each than few. Positions are counted from 0 and
// must exist. Whatever throws for want of memory leaves the sequence as it was.
template <typename Element>
class BlockSequence {
  public:
    std::size_t Size() const { return ends_.empty() ? 0 : ends_.back(); }

    Element operator[](std::size_t position) const {
        const std::size_t block = BlockOf(position);
        return blocks_[block][position - StartOf(block)];
    }

    // In front of the one at that position; at the position Size() behind the last.
    void Insert(std::size_t position, Element element) {
        std::size_t block = BlockOf(position);
        if (block == blocks_.size() && block > 0 && blocks_.back().size() < Room) --block;
        if (block == blocks_.size()) {
            AddBlock(block, {element}, Size());
        } else {
            if (blocks_[block].size() == Room) {
                Split(block);
                if (position > ends_[block]) ++block;
            }
            std::vector<Element>& taker = blocks_[block];
            const auto place = static_cast<std::ptrdiff_t>(position - StartOf(block));
            taker.insert(taker.begin() + place, element);
        }
        for (; block < ends_.size(); ++block) ++ends_[block];
    }

    void Erase(std::size_t position) {
        const std::size_t block = BlockOf(position);
        std::vector<Element>& loser = blocks_[block];
        loser.erase(loser.begin() + static_cast<std::ptrdiff_t>(position - StartOf(block)));
        for (std::size_t i = block; i < ends_.size(); ++i) --ends_[i];
        if (!loser.empty()) return;
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(block));
        ends_.erase(ends_.begin() + static_cast<std::ptrdiff_t>(block));
    }

    void Clear() {
        blocks_.clear();
        ends_.clear();
    }

    // From the first to the last, until a visit answers false.
    template <typename Visit>
    void ForEach(Visit visit) const {
        for (const std::vector<Element>& block : blocks_) {
            for (const Element element : block) {
                if (!visit(element)) return;
            }
        }
    }

    // Puts other elements at the places of these, as many as there are.
    void Replace(const Element* others) {
        for (std::vector<Element>& block : blocks_) {
            std::copy_n(others, block.size(), block.begin());
            others += block.size();
        }
    }

  private:
    static constexpr std::size_t Room = 512;

    std::size_t StartOf(std::size_t block) const { return block == 0 ? 0 : ends_[block - 1]; }

    // The number of blocks for the position behind the last element.
    std::size_t BlockOf(std::size_t position) const {
        return static_cast<std::size_t>(std::upper_bound(ends_.begin(), ends_.end(), position) -
                                        ends_.begin());
    }

    void AddBlock(std::size_t block, std::vector<Element> elements, std::size_t end) {
        blocks_.reserve(blocks_.size() + 1);
        ends_.reserve(ends_.size() + 1);
        const auto place = static_cast<std::ptrdiff_t>(block);
        blocks_.insert(blocks_.begin() + place, std::move(elements));
        ends_.insert(ends_.begin() + place, end);
    }

    void Split(std::size_t block) {
        constexpr std::ptrdiff_t Half = Room / 2;
        const std::size_t end = ends_[block];
        const std::vector<Element>& full = blocks_[block];
        AddBlock(block + 1, {full.begin() + Half, full.end()}, end);
        blocks_[block].resize(Half);
        ends_[block] = end - (Room - Half);
    }

    // No block is empty.
    std::vector<std::vector<Element>> blocks_;
    // Of each block: how many elements stand in it and in those in front of it.
    std::vector<std::size_t> ends_;
};

}  // namespace toolkit
