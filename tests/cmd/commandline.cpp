#include "cmd/commandline.h"

#include <doctest/doctest.h>

namespace {

using Arguments = std::vector<std::string>;

// The arguments behind a program's name.
Arguments Behind(std::string_view text) {
    return cmd::SplitCommandLine("QuillmoreCmd.exe " + std::string(text));
}

}  // namespace

TEST_CASE("blanks and tabs part arguments, however many") {
    CHECK(Behind("").empty());
    CHECK(Behind(" \t ").empty());
    CHECK(Behind("plan") == Arguments{"plan"});
    CHECK(Behind("  plan \t/raw\t\t\tx ") == Arguments{"plan", "/raw", "x"});
    CHECK(Behind("a\nb") == Arguments{"a\nb"});
}

TEST_CASE("quotes keep blanks together and go away themselves") {
    CHECK(Behind("\"a b\"") == Arguments{"a b"});
    CHECK(Behind("/reg:\"C:\\Eigene Dateien\\x.reg\" y") ==
          Arguments{"/reg:C:\\Eigene Dateien\\x.reg", "y"});
    CHECK(Behind("a\"b c\"d") == Arguments{"ab cd"});
    CHECK(Behind("\"a\tb\"") == Arguments{"a\tb"});
    CHECK(Behind("\"\"") == Arguments{""});
    CHECK(Behind("\"\" x \"\"") == Arguments{"", "x", ""});
}

TEST_CASE("a quote that is not closed reaches to the end") {
    CHECK(Behind("\"a b") == Arguments{"a b"});
    CHECK(Behind("a \"") == Arguments{"a", ""});
    CHECK(Behind("\"a b  ") == Arguments{"a b  "});
}

TEST_CASE("backslashes count double before a quote only") {
    CHECK(Behind(R"(C:\a\\b\)") == Arguments{R"(C:\a\\b\)"});
    CHECK(Behind(R"(\"a)") == Arguments{R"("a)"});
    CHECK(Behind(R"(a\"b c)") == Arguments{R"(a"b)", "c"});
    CHECK(Behind(R"(\\"a b")") == Arguments{R"(\a b)"});
    CHECK(Behind(R"(\\\"a b)") == Arguments{R"(\"a)", "b"});
    CHECK(Behind(R"("C:\a b\\" c)") == Arguments{R"(C:\a b\)", "c"});
    CHECK(Behind(R"("C:\a b\" c)") == Arguments{R"(C:\a b" c)"});
    CHECK(Behind(R"(\\\\)") == Arguments{R"(\\\\)"});
    CHECK(Behind(R"("\)") == Arguments{R"(\)"});
}

TEST_CASE("two quotes in a quoted part are one and its end") {
    CHECK(Behind(R"("a""b c")") == Arguments{R"(a"b)", "c"});
    CHECK(Behind(R"("""a b""")") == Arguments{R"("a)", R"(b")"});
    CHECK(Behind(R"("a"" b)") == Arguments{R"(a")", "b"});
    CHECK(Behind(R"(a""b)") == Arguments{"ab"});
}

TEST_CASE("the program's name is passed over, quoted or not") {
    CHECK(cmd::SplitCommandLine("").empty());
    CHECK(cmd::SplitCommandLine("a.exe").empty());
    CHECK(cmd::SplitCommandLine(R"("C:\a b\c.exe" x)") == Arguments{"x"});
    CHECK(cmd::SplitCommandLine(R"("C:\a b\c\" x y)") == Arguments{"x", "y"});
    CHECK(cmd::SplitCommandLine(R"("C:\a b)").empty());
    CHECK(cmd::SplitCommandLine("C:\\a\\c.exe\tx") == Arguments{"x"});
    CHECK(cmd::SplitCommandLine(R"("C:\c.exe"x)") == Arguments{"x"});
    CHECK(cmd::SplitCommandLine(" x") == Arguments{"x"});
    CHECK(cmd::SplitCommandLine("\"\" x") == Arguments{"x"});
}

TEST_CASE("no character of an argument is lost") {
    CHECK(Behind("Größe\xD0\x96 \xF0\x9D\x84\x9E\xED\xA0\xB4") ==
          Arguments{"Größe\xD0\x96", "\xF0\x9D\x84\x9E\xED\xA0\xB4"});
}
