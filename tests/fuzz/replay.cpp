// The inputs of the corpus, each through the target of its folder.
#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "fuzz/target.h"

namespace {

namespace fs = std::filesystem;

const fs::path Corpus = fs::path(QUILLMORE_SOURCE_DIR) / "tests/fuzz/corpus";

std::string ContentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

TEST_CASE("every input of the corpus passes its target") {
    for (const auto& [name, target] : fuzz::Targets()) {
        std::size_t inputs = 0;
        for (const auto& entry : fs::directory_iterator(Corpus / name)) {
            ++inputs;
            CAPTURE(entry.path().string());
            CHECK_NOTHROW(target(ContentOf(entry.path())));
        }
        CAPTURE(name);
        CHECK(inputs > 0);
    }
}

TEST_CASE("every target has a folder of the corpus, and every folder a target") {
    std::set<std::string> targets;
    for (const auto& [name, target] : fuzz::Targets()) targets.insert(name);
    std::set<std::string> folders;
    for (const auto& entry : fs::directory_iterator(Corpus)) {
        folders.insert(entry.path().filename().string());
    }
    CHECK(!targets.empty());
    CHECK(targets == folders);
}
