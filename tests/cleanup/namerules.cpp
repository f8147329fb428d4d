#include "cleanup/namerules.h"

#include <doctest/doctest.h>

#include <string>

namespace {

bool IsTemp(std::string_view name) {
    return cleanup::IsTempFile("C:\\x\\" + std::string(name), false);
}

}  // namespace

TEST_CASE("rule 1: nine extensions, in small letters only") {
    for (const char* extension : {"---", "tmp", "_mp", "old", "bak", "chk", "gid", "dmp", "syd"}) {
        CHECK(IsTemp(std::string("a.") + extension));
        CHECK(IsTemp(std::string(".") + extension));
        CHECK_FALSE(IsTemp(std::string("a.x") + extension));
        CHECK_FALSE(IsTemp(std::string("a.") + extension + "x"));
        CHECK_FALSE(IsTemp(std::string("a.") + extension + ".x"));
        CHECK_FALSE(IsTemp(std::string("x") + extension));
    }
    for (const char* name : {"a.TMP", "a.Tmp", "A.BAK", "a.oLD"}) CHECK_FALSE(IsTemp(name));
    CHECK(IsTemp("A.tmp"));
}

TEST_CASE("rule 1: question marks are plain text, so a tilde in the third place is another rule") {
    CHECK(IsTemp("a.??~"));
    CHECK(IsTemp("a.xy~"));
    CHECK_FALSE(IsTemp("a.xyz"));
}

TEST_CASE("rule 2: mscreate.dir in any case") {
    for (const char* name : {"mscreate.dir", "MSCREATE.DIR", "MsCreate.dir"}) CHECK(IsTemp(name));
    CHECK_FALSE(IsTemp("xmscreate.dir"));
    CHECK_FALSE(IsTemp("mscreate.dirx"));
}

TEST_CASE("rule 3: a name with seven question marks, which are no wildcards") {
    CHECK(IsTemp("0???????.nch"));
    CHECK(IsTemp("0???????.NCH"));
    CHECK_FALSE(IsTemp("01234567.nch"));
}

TEST_CASE("rule 4: an extension that begins with a tilde") {
    CHECK(IsTemp("a.~xx"));
    CHECK(IsTemp("a.~"));
    CHECK_FALSE(IsTemp("a.~xx.b"));
}

TEST_CASE("rule 5: a name that begins with a tilde") {
    CHECK(IsTemp("~a.txt"));
    CHECK(IsTemp("~"));
    CHECK_FALSE(IsTemp("a~b.txt"));
}

TEST_CASE("rule 6: an extension that ends with a tilde") {
    CHECK(IsTemp("a.tm~"));
    CHECK(IsTemp("a.b~"));
    CHECK_FALSE(IsTemp("a~.b"));
    CHECK_FALSE(IsTemp("ab~"));
}

TEST_CASE("rule 7: a name that begins with two hyphens") {
    CHECK(IsTemp("--x.dat"));
    CHECK(IsTemp("--"));
    CHECK_FALSE(IsTemp("-x.dat"));
    CHECK_FALSE(IsTemp("a--x.dat"));
}

TEST_CASE("rule 8: Thumbs.db in any case, only when it is asked for") {
    for (const char* path : {"C:\\x\\Thumbs.db", "C:\\x\\THUMBS.DB", "thumbs.db"}) {
        CHECK(cleanup::IsTempFile(path, true));
        CHECK_FALSE(cleanup::IsTempFile(path, false));
    }
    CHECK_FALSE(cleanup::IsTempFile("C:\\x\\Thumbs.db2", true));
    CHECK_FALSE(cleanup::IsTempFile("C:\\Thumbs.db\\x", true));
}

TEST_CASE("a name without an extension, or with an empty one, is no temporary file") {
    for (const char* name : {"a", "a.", "tmp", "a.b.", ""}) CHECK_FALSE(IsTemp(name));
}

TEST_CASE("the folder's name plays no part") {
    CHECK_FALSE(cleanup::IsTempFile("C:\\~a.tmp\\b.txt", true));
    CHECK_FALSE(cleanup::IsTempFile("C:\\--x\\b", true));
}
