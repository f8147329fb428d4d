// A total of seconds hides a quadratic loop that is merely fast, so these cases compare two sizes.
#include <doctest/doctest.h>

#include <algorithm>
#include <ctime>
#include <functional>

#include "runtime/number.h"
#include "runtime/text.h"
#include "support/failureof.h"

using namespace runtime;

namespace {

using Function = std::function<void(const std::string&)>;

std::string Filled(std::string_view piece, std::size_t size) {
    std::string text;
    while (text.size() < size) text += piece;
    return text;
}

double Seconds(const Function& function, const std::string& text) {
    const std::clock_t start = std::clock();
    function(text);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Eight times the text takes a linear function 8 times as long and a quadratic one 64 times.
// Only the processor's time counts, and of that the best of several rounds, because the machine may
// be busy with other things; the constant stands for what a clock cannot tell apart.
void CheckLinear(const Function& function, std::string_view piece) {
    const std::string text = Filled(piece, 64 * 1024);
    const std::string eightfold = Filled(piece, 8 * 64 * 1024);
    double once = 1e9;
    double eight = 1e9;
    for (int round = 0; round < 4; ++round) {
        once = std::min(once, Seconds(function, text));
        eight = std::min(eight, Seconds(function, eightfold));
    }
    CAPTURE(piece);
    CHECK(eight < 28 * once + 0.005);
}

}  // namespace

TEST_CASE("the time to read a number grows as its text does") {
    for (const char* piece : {"9", "0", "1.", " ", "\xFF"}) {
        CheckLinear([](const std::string& text) { ParseNumber(text, {}); }, piece);
    }
    const auto behind = [](const char* head) {
        return [head](const std::string& text) { ParseNumber(head + text, {}); };
    };
    CheckLinear(behind("0,"), "3");
    CheckLinear(behind("1e"), "0");
    CheckLinear(behind("&H"), "0");
}

TEST_CASE("the time to read a leading number grows as its text does") {
    for (const char* piece : {"9", "0", " ", "1 ", "\xFF"}) {
        CheckLinear([](const std::string& text) { FailureOf([&] { LeadingNumber(text); }); },
                    piece);
    }
}

TEST_CASE("the time to count and cut characters grows as the text does") {
    for (const char* piece : {"a", "ä", "\xE2\x82", "\x80"}) {
        CheckLinear([](const std::string& text) { Length(text); }, piece);
        CheckLinear([](const std::string& text) { Left(text, text.size() / 2); }, piece);
        CheckLinear([](const std::string& text) { Mid(text, text.size() / 4, text.size() / 4); },
                    piece);
    }
}

TEST_CASE("the time to trim, compare and change the case grows as the text does") {
    for (const char* piece : {"a", "ä", " "}) {
        CheckLinear([](const std::string& text) { ToLower(text); }, piece);
        CheckLinear([](const std::string& text) { ToUpper(text); }, piece);
        CheckLinear([](const std::string& text) { Trim(text + 'x' + text); }, piece);
        CheckLinear([](const std::string& text) { EqualsIgnoringCase(text, text); }, piece);
    }
}
