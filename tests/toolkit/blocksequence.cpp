#include "toolkit/blocksequence.h"

#include <doctest/doctest.h>

#include <random>

using Sequence = toolkit::BlockSequence<int>;

namespace {

std::vector<int> All(const Sequence& sequence) {
    std::vector<int> all;
    sequence.ForEach([&](int element) {
        all.push_back(element);
        return true;
    });
    return all;
}

void CheckSame(const Sequence& sequence, const std::vector<int>& expected) {
    REQUIRE(sequence.Size() == expected.size());
    CHECK(All(sequence) == expected);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (sequence[i] != expected[i]) FAIL("the element at " << i << " is another");
    }
}

// Counts how often one is put to another place.
struct Moved {
    Moved(int number = 0) : number(number) {}
    Moved(const Moved& other) : number(other.number) { ++times; }
    Moved& operator=(const Moved& other) {
        number = other.number;
        ++times;
        return *this;
    }

    int number;
    static inline long times = 0;
};

}  // namespace

TEST_CASE("a fresh sequence is empty") {
    const Sequence sequence;
    CHECK(sequence.Size() == 0);
    CHECK(All(sequence).empty());
}

TEST_CASE("elements put at the end keep their order over many blocks") {
    Sequence sequence;
    std::vector<int> expected;
    for (int i = 0; i < 5000; ++i) {
        sequence.Insert(sequence.Size(), i);
        expected.push_back(i);
    }
    CheckSame(sequence, expected);
}

TEST_CASE("elements put in front push all others back") {
    Sequence sequence;
    std::vector<int> expected;
    for (int i = 0; i < 3000; ++i) {
        sequence.Insert(0, i);
        expected.insert(expected.begin(), i);
    }
    CheckSame(sequence, expected);
}

TEST_CASE("elements come and go anywhere as in a plain sequence") {
    std::mt19937 random(7);
    Sequence sequence;
    std::vector<int> expected;
    for (int i = 0; i < 20000; ++i) {
        const bool comes = expected.empty() || random() % 5 < (i < 12000 ? 4U : 1U);
        const std::size_t place = random() % (expected.size() + (comes ? 1 : 0));
        const auto at = expected.begin() + static_cast<std::ptrdiff_t>(place);
        if (comes) {
            sequence.Insert(place, i);
            expected.insert(at, i);
        } else {
            sequence.Erase(place);
            expected.erase(at);
        }
        if (i % 1000 == 0) CheckSame(sequence, expected);
    }
    CheckSame(sequence, expected);
}

TEST_CASE("taking the first away until none is left leaves a sequence that can be filled again") {
    Sequence sequence;
    for (int i = 0; i < 1500; ++i) sequence.Insert(sequence.Size(), i);
    for (int i = 0; i < 1500; ++i) {
        REQUIRE(sequence[0] == i);
        sequence.Erase(0);
    }
    CHECK(sequence.Size() == 0);
    sequence.Insert(0, 9);
    CheckSame(sequence, {9});
}

TEST_CASE("a cleared sequence is empty and can be filled again") {
    Sequence sequence;
    for (int i = 0; i < 600; ++i) sequence.Insert(0, i);
    sequence.Clear();
    CHECK(sequence.Size() == 0);
    sequence.Insert(0, 1);
    CheckSame(sequence, {1});
}

TEST_CASE("others take the places of the elements") {
    Sequence sequence;
    std::vector<int> others;
    for (int i = 0; i < 2000; ++i) {
        sequence.Insert(static_cast<std::size_t>(i) / 2, i);
        others.push_back(-i);
    }
    sequence.Replace(others.data());
    CheckSame(sequence, others);
}

TEST_CASE("a visit that answers false is the last one") {
    Sequence sequence;
    for (int i = 0; i < 2000; ++i) sequence.Insert(sequence.Size(), i);
    int visits = 0;
    sequence.ForEach([&](int element) {
        ++visits;
        return element < 1000;
    });
    CHECK(visits == 1001);
}

TEST_CASE("an element that is put in front moves those of one block, however many there are") {
    constexpr int Count = 20000;
    constexpr long InOneBlock = 600;
    toolkit::BlockSequence<Moved> sequence;
    Moved::times = 0;
    for (int i = 0; i < Count; ++i) sequence.Insert(0, Moved(i));
    CHECK(Moved::times < Count * InOneBlock);
    CHECK(sequence[0].number == Count - 1);
    CHECK(sequence[Count - 1].number == 0);
}
