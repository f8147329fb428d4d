// Text from outside is anything: the registry, the clipboard and the settings store hold what
// others put there. The sanitizers watch what these cases run over.
#include <doctest/doctest.h>

#include <chrono>
#include <optional>
#include <random>

#include "runtime/number.h"
#include "runtime/signs.h"
#include "runtime/text.h"
#include "support/failureof.h"

using namespace runtime;

namespace {

constexpr std::size_t Huge = 65536;

// What each function promises of any text, whatever stands in it.
void CheckPromises(const std::string& text) {
    CAPTURE(text);
    const bool numeric = IsNumeric(text, German);
    REQUIRE(ParseNumber(text, German).has_value() == numeric);

    const int whole = FailureOf([&] { ToWholeNumber(text, German); });
    REQUIRE((whole == 0 || whole == Overflow || whole == TypeMismatch));
    if (whole == 0) REQUIRE(numeric);
    if (numeric) REQUIRE(whole != TypeMismatch);

    const int leading = FailureOf([&] { LeadingNumber(text); });
    REQUIRE((leading == 0 || leading == Overflow));

    const std::size_t length = Length(text);
    REQUIRE(length <= text.size());
    REQUIRE(Left(text, length / 2) + Mid(text, length / 2) == text);
    REQUIRE(Length(Left(text, length / 2)) == length / 2);
    REQUIRE(Mid(text, 0, length) == text);
    REQUIRE(Length(ToUpper(text)) == length);
    REQUIRE(EqualsIgnoringCase(text, text));
}

std::string RandomText(std::mt19937& random, const std::string& alphabet, std::size_t longest) {
    std::string text;
    for (std::size_t size = random() % (longest + 1); text.size() < size;) {
        text += alphabet.empty() ? static_cast<char>(random() % 256)
                                 : alphabet[random() % alphabet.size()];
    }
    return text;
}

}  // namespace

TEST_CASE("random bytes break no promise") {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) CheckPromises(RandomText(random, "", 24));
}

TEST_CASE("random mixtures of what numbers are made of break no promise") {
    std::mt19937 random(2);
    for (int i = 0; i < 20000; ++i) CheckPromises(RandomText(random, "0159,.+-eEdD&hHoOfF \t", 12));
}

TEST_CASE("random mixtures of umlauts and their halves break no promise") {
    std::mt19937 random(3);
    for (int i = 0; i < 20000; ++i) {
        CheckPromises(RandomText(random, "aZ \xC3\x84\xBF\x97\xE2\x82\xF0\x9F", 12));
    }
}

TEST_CASE("64 KiB of anything are worked through at once") {
    const auto start = std::chrono::steady_clock::now();
    for (const char* piece :
         {"9", "0", ".", "1.", " ", "-", "e", "&H", "F", "\xC3", "ä", "\xE2\x82"}) {
        for (const char* head : {"", "1", "0,", "1,", "1e", "1e-", "&H", "&O"}) {
            std::string text = head;
            while (text.size() < Huge) text += piece;
            CheckPromises(text);
        }
    }
    const auto spent = std::chrono::steady_clock::now() - start;
    // 96 texts of 64 KiB: linear work takes a few seconds under sanitizers, quadratic work hours.
    CHECK(spent < std::chrono::seconds(60));
}

TEST_CASE("64 KiB of zeros cancelled by an exponent still give the number") {
    const std::string zeros(Huge, '0');
    CHECK(ParseNumber("1" + zeros + "e-65536", German) == std::optional<double>(1));
    CHECK(ParseNumber("0," + zeros + "1e65537", German) == std::optional<double>(1));
    CHECK(ToWholeNumber(zeros + "7", German) == 7);
}
