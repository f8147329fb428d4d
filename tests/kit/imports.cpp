#include "kit/imports.h"

#include <windows.h>

#include <cstddef>
#include <cstring>

#include "platform/win32/text.h"

namespace kit {
namespace {

// A file that is laid out as on the disk, while its tables count as laid out in memory. What lies
// behind its end is zero.
class Image {
  public:
    explicit Image(std::string_view bytes) : bytes_(bytes) {
        const auto at = static_cast<std::size_t>(Read<IMAGE_DOS_HEADER>(0).e_lfanew);
        headers_ = Read<IMAGE_NT_HEADERS32>(at);
        first_ = at + offsetof(IMAGE_NT_HEADERS32, OptionalHeader) +
                 headers_.FileHeader.SizeOfOptionalHeader;
    }

    DWORD ImportTable() const {
        return headers_.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    }
    template <typename Record>
    Record At(DWORD address) const {
        return Read<Record>(Place(address));
    }
    std::string TextAt(DWORD address) const {
        const std::size_t place = Place(address);
        if (place >= bytes_.size()) return "";
        const std::string_view rest = bytes_.substr(place);
        return std::string(rest.substr(0, rest.find('\0')));
    }

  private:
    template <typename Record>
    Record Read(std::size_t place) const {
        Record record = {};
        if (place <= bytes_.size() && bytes_.size() - place >= sizeof record) {
            std::memcpy(&record, bytes_.data() + place, sizeof record);
        }
        return record;
    }
    std::size_t Place(DWORD address) const {
        for (std::size_t i = 0; i < headers_.FileHeader.NumberOfSections; ++i) {
            const auto section =
                Read<IMAGE_SECTION_HEADER>(first_ + i * IMAGE_SIZEOF_SECTION_HEADER);
            if (address >= section.VirtualAddress &&
                address - section.VirtualAddress < section.SizeOfRawData) {
                return address - section.VirtualAddress + section.PointerToRawData;
            }
        }
        return bytes_.size();
    }

    std::string_view bytes_;
    IMAGE_NT_HEADERS32 headers_ = {};
    std::size_t first_ = 0;
};

void LookFor(const Image& image, const IMAGE_IMPORT_DESCRIPTOR& library,
             std::vector<std::string>& missing) {
    const std::string name = image.TextAt(library.Name);
    const HMODULE module = LoadLibraryExA(name.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
    if (!module) {
        missing.push_back(name);
        return;
    }
    DWORD entry = library.OriginalFirstThunk;
    while (const DWORD import = image.At<DWORD>(entry)) {
        entry += sizeof import;
        if (import & IMAGE_ORDINAL_FLAG32) {
            const WORD number = IMAGE_ORDINAL32(import);
            if (!GetProcAddress(module, MAKEINTRESOURCEA(number))) {
                missing.push_back(name + "!#" + std::to_string(number));
            }
        } else {
            const std::string function = image.TextAt(import + sizeof(WORD));
            if (!GetProcAddress(module, function.c_str())) missing.push_back(name + '!' + function);
        }
    }
    FreeLibrary(module);
}

}  // namespace

std::vector<std::string> MissingImports(std::string_view program) {
    const Image image(program);
    std::vector<std::string> missing;
    DWORD entry = image.ImportTable();
    if (entry == 0) return {"alles"};
    for (;; entry += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
        const auto library = image.At<IMAGE_IMPORT_DESCRIPTOR>(entry);
        if (library.Name == 0) return missing;
        LookFor(image, library, missing);
    }
}

}  // namespace kit
