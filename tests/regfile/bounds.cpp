// Whatever a file holds, it is read or refused, and soon. The sanitizers watch.
#include <doctest/doctest.h>

#include <algorithm>
#include <ctime>
#include <random>

#include "units.h"

using namespace regfile_test;

namespace {

bool Reads(const std::string& file) {
    try {
        Read(file);
        return true;
    } catch (const Slip& slip) {
        CHECK(slip.line > 0);
        CHECK(slip.reason[0] != '\0');
        return false;
    }
}

const std::string Sample =
    "Windows Registry Editor Version 5.00\r\n\r\n; note\r\n[HKEY_LOCAL_MACHINE\\A\\ü]\r\n"
    "@=\"x\\\\y \\\"z\\\"\"\r\n\"m\"=hex(7):61,00,\\\r\n  00,00\r\n\"n\"=dword:0000000a\r\n"
    "\"€\"=-\r\n\r\n[-HKEY_CURRENT_USER\\Z]\r\n";

std::vector<std::string> SampleFiles() {
    return {"\xEF\xBB\xBF" + Sample, Sample, Write(ReadText(Sample))};
}

double SecondsFor(const std::string& file) {
    const std::clock_t start = std::clock();
    Reads(file);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Eight times the file takes a linear reader 8 times as long and a quadratic one 64 times.
void CheckLinear(const std::string& head, const std::string& piece) {
    const auto filled = [&](std::size_t size) {
        std::string text = "Windows Registry Editor Version 5.00\n" + head;
        while (text.size() < size) text += piece;
        return text;
    };
    const std::string small = filled(32 * 1024);
    const std::string large = filled(8 * 32 * 1024);
    double once = 1e9;
    double eight = 1e9;
    for (int round = 0; round < 4; ++round) {
        once = std::min(once, SecondsFor(small));
        eight = std::min(eight, SecondsFor(large));
    }
    CAPTURE(head);
    CAPTURE(piece);
    CHECK(eight < 28 * once + 0.01);
}

}  // namespace

TEST_CASE("a file cut at any byte is read or refused") {
    for (const std::string& whole : SampleFiles()) {
        CHECK(Reads(whole));
        for (std::size_t i = 0; i < whole.size(); ++i) Reads(whole.substr(0, i));
    }
}

TEST_CASE("a file with any byte changed, added or lost is read or refused") {
    for (const std::string& whole : SampleFiles()) {
        for (std::size_t i = 0; i < whole.size(); ++i) {
            std::string lost = whole;
            lost.erase(i, 1);
            Reads(lost);
            for (const char c : {'\0', '\\', '"', '[', ']', ',', '\n', '\r', '0', '\xD8', '\xFF'}) {
                std::string changed = whole;
                changed[i] = c;
                Reads(changed);
                std::string longer = whole;
                longer.insert(i, 1, c);
                Reads(longer);
            }
        }
    }
}

TEST_CASE("random bytes and random pieces of a file are read or refused") {
    static const std::vector<std::string> Pieces = {
        "[",   "]",        "\\", "\"",   "@",      "=",      "-",
        "hex", "(",        "):", ":",    ",",      "0",      "ff",
        "\r",  "\n",       ";",  " ",    "\t",     "\xFF",   "\xED",
        "ü",   "\\\r\n  ", "a",  "\r\n", "dword:", "\"v\"=", "\n[HKEY_LOCAL_MACHINE\\A]\n"};
    std::mt19937 dice(7);
    int read = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string bytes(dice() % 60, '\0');
        for (char& byte : bytes) byte = static_cast<char>(dice());
        static const char* const Heads[] = {"", "\xFF\xFE", "\xEF\xBB\xBF",
                                            "Windows Registry Editor Version 5.00\n"};
        Reads(Heads[dice() % 4] + bytes);
        std::string pieces = Heads[3];
        for (auto left = dice() % 12; left > 0; --left) pieces += Pieces[dice() % Pieces.size()];
        read += Reads(pieces);
    }
    CHECK(read > 100);
    CHECK(read < 19000);
}

TEST_CASE("the time to read a file grows as the file does") {
    const std::string key = "[HKEY_LOCAL_MACHINE\\A]\n";
    for (const char* piece : {"x", "]", "]\n", "\\", "\"", ";", "\r", "\n", " ", "[", "[-"}) {
        CheckLinear("", piece);
        CheckLinear("[HKEY_LOCAL_MACHINE\\", piece);
    }
    CheckLinear("", key);
    CheckLinear(key, "@=-\n");
    CheckLinear(key, "@=\"\"\n");
    for (const char* head : {"@=\"", "\"", "@=hex:", "@=hex:00", "@=dword:", "@=hex(", "@=", "@"}) {
        for (const char* piece : {"0", "00,", "\\\\", "\\\n", ",", " ", "\n", "x", "\xC3\xBC"}) {
            CheckLinear(key + head, piece);
        }
    }
    // Below a key with a long path each value counts by itself.
    CheckLinear("[HKEY_LOCAL_MACHINE\\" + std::string(20000, 'x') + "]\n", "@=-\n");
}

TEST_CASE("the time to write a file grows as its content does") {
    const auto seconds = [](std::size_t size) {
        const std::vector<Key> keys = {
            {Machine,
             "A",
             false,
             {{std::string(size, 'n'), false, 3, std::vector<std::uint8_t>(size)},
              {"", false, 1, Terminated(std::u16string(size, u'x'))}}}};
        double best = 1e9;
        for (int round = 0; round < 4; ++round) {
            const std::clock_t start = std::clock();
            const std::string file = Write(keys);
            best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
            CHECK(file.size() > size * 10);
        }
        return best;
    };
    const double once = seconds(16 * 1024);
    CHECK(seconds(8 * 16 * 1024) < 28 * once + 0.01);
}
