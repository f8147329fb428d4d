#include "app/buttonpictures.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "app/program.h"
#include "controls/chameleonbutton.h"

using namespace app_test;

TEST_CASE("each button below the pages shows its picture beside its caption, on the mask colour") {
    Program program;
    REQUIRE(program.Start());
    std::vector<toolkit::Pixels> seen;
    for (const char* name :
         {"cmdSetAllOptimal", "cmdSysInfo", "cmdHilfe", "cmdAbout", "cmdApply", "cmdEnd"}) {
        CAPTURE(name);
        const auto& properties = program.form->Find<controls::chameleonButton>(name).Properties();
        const auto* picture =
            dynamic_cast<const toolkit::PixelPicture*>(properties.pictureNormal.get());
        REQUIRE(picture);
        CHECK(picture->Extent().width == 16);
        CHECK(picture->Extent().height <= 16);
        const toolkit::Pixels& pixels = picture->Content();
        REQUIRE(static_cast<int>(pixels.size()) == 16 * picture->Extent().height);
        CHECK(properties.picturePosition == 0);
        CHECK(properties.useMaskColor);
        CHECK(std::count(pixels.begin(), pixels.end(), properties.maskColor) > 0);
        CHECK(std::find(seen.begin(), seen.end(), pixels) == seen.end());
        seen.push_back(pixels);
    }
}

TEST_CASE("a button on a page has no picture") {
    Program program;
    REQUIRE(program.Start());
    const auto& button = program.form->Find<controls::chameleonButton>("cmdOptimal");
    CHECK(button.Properties().pictureNormal == nullptr);
    CHECK(app::ButtonPicture("cmdOptimal") == nullptr);
}
