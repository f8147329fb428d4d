#include "app/buttonpictures.h"

#include <algorithm>
#include <iterator>

namespace app {
namespace {

struct Ink {
    char sign;
    std::uint32_t pixel;
};

constexpr Ink Inks[] = {
    {' ', 0xC0C0C0}, {'#', 0x0B2742}, {'1', 0xF2B632}, {'2', 0xFFE7A3},
    {'3', 0x3F8FB5}, {'4', 0xA8D4E8}, {'5', 0xFFFFFF}, {'6', 0x3C9A3C},
    {'7', 0x9CDB8C}, {'8', 0xC23B22}, {'9', 0xF08A70},
};

constexpr int Width = 16;

struct Drawing {
    std::string_view button;
    // Lines of Width signs.
    std::string_view lines;
};

// clang-format off
constexpr Drawing Drawings[] = {
    {.button = "cmdSetAllOptimal", .lines =
     "         ###    "
     "        #12#    "
     "       #12#     "
     "      #12#      "
     "     #12#       "
     "    #12####     "
     "   #111112#     "
     "   ####11#      "
     "     #11#       "
     "     #1#        "
     "    #1#         "
     "    ##          "
     "    #           "},
    {.button = "cmdSysInfo", .lines =
     " ############## "
     " #333333333333# "
     " #344444433333# "
     " #343333333333# "
     " #343333333333# "
     " #333333333333# "
     " #333333333333# "
     " #333333333333# "
     " ############## "
     "      ####      "
     "      ####      "
     "    ########    "},
    {.button = "cmdHilfe", .lines =
     "    ########    "
     "   #33333333#   "
     "  #3335555333#  "
     " #333553355333# "
     " #333553355333# "
     " #333333355333# "
     " #333333553333# "
     " #333335533333# "
     " #333335533333# "
     " #333333333333# "
     " #333335533333# "
     "  #3333553333#  "
     "   #33333333#   "
     "    ########    "},
    {.button = "cmdAbout", .lines =
     "    ########    "
     "   #33333333#   "
     "  #3333553333#  "
     " #333335533333# "
     " #333333333333# "
     " #333355533333# "
     " #333335533333# "
     " #333335533333# "
     " #333335533333# "
     " #333335533333# "
     " #333355553333# "
     "  #3333333333#  "
     "   #33333333#   "
     "    ########    "},
    {.button = "cmdApply", .lines =
     "             ## "
     "            #66#"
     "           #667#"
     "          #667# "
     " ##      #667#  "
     "#66#    #667#   "
     "#766#  #667#    "
     " #766##667#     "
     "  #766667#      "
     "   #7667#       "
     "    #77#        "
     "     ##         "},
    {.button = "cmdEnd", .lines =
     "  ##        ##  "
     " #88#      #88# "
     " #988#    #889# "
     "  #988#  #889#  "
     "   #988##889#   "
     "    #988889#    "
     "     #8888#     "
     "     #8888#     "
     "    #988889#    "
     "   #988##889#   "
     "  #988#  #889#  "
     " #988#    #889# "
     " #88#      #88# "
     "  ##        ##  "},
};
// clang-format on

constexpr const Ink* InkOf(char sign) {
    return std::find_if(std::begin(Inks), std::end(Inks),
                        [&](const Ink& one) { return one.sign == sign; });
}

constexpr bool IsDrawn(const Drawing& drawing) {
    return drawing.lines.size() % Width == 0 &&
           std::all_of(drawing.lines.begin(), drawing.lines.end(),
                       [](char sign) { return InkOf(sign) != std::end(Inks); });
}

static_assert(std::all_of(std::begin(Drawings), std::end(Drawings), IsDrawn));

}  // namespace

toolkit::SharedPicture ButtonPicture(std::string_view button) {
    const auto drawing = std::find_if(std::begin(Drawings), std::end(Drawings),
                                      [&](const Drawing& one) { return one.button == button; });
    if (drawing == std::end(Drawings)) return nullptr;
    toolkit::Pixels pixels;
    for (const char sign : drawing->lines) pixels.push_back(InkOf(sign)->pixel);
    const int height = static_cast<int>(pixels.size()) / Width;
    return std::make_shared<toolkit::PixelPicture>(toolkit::Size{Width, height}, std::move(pixels));
}

}  // namespace app
