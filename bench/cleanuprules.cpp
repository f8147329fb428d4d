// Decides by name and attributes about many files; bench/run counts the instructions.
// Call: cleanuprules FILES
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "cleanup/attributerules.h"
#include "cleanup/namerules.h"

namespace {

// Names as a disk has them: most are no temporary files and so meet all rules.
std::vector<std::string> Paths(int files) {
    const char* const names[] = {"explorer.exe", "Größe der Bilder.jpg", "setup.log", "index.htm",
                                 "Thumbs.db",    "~WRL0001.tmp",         "README",    "shell32.dll",
                                 "desktop.ini",  "Rechnung 2004.doc"};
    std::vector<std::string> paths;
    for (int file = 0; file < files; ++file) {
        paths.push_back("C:\\Dokumente und Einstellungen\\Besitzer\\Eigene Dateien\\" +
                        std::to_string(file) + "\\" + names[file % 10]);
    }
    return paths;
}

}  // namespace

// By this name the measuring script finds it.
extern "C" __attribute__((noinline)) int MeasuredRules(const std::vector<std::string>& paths) {
    int rows = 0;
    for (const std::string& path : paths) {
        rows += cleanup::IsTempFile(path, true) && cleanup::AttributesGiveRow(32, path, true);
    }
    return rows;
}

int main(int count, char** words) {
    if (count != 2) return 2;
    const int files = std::atoi(words[1]);
    return MeasuredRules(Paths(files)) == files / 5 ? 0 : 1;
}
