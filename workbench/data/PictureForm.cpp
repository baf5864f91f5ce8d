#include "workbench/data/PictureForm.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

struct Ending {
    char const* text;
    PictureForm form;
};
constexpr Ending Endings[] = {
    {".tif", PictureForm::GeoTiff}, {".tiff", PictureForm::GeoTiff}, {".png", PictureForm::Png},
    {".jpg", PictureForm::Jpeg},    {".jpeg", PictureForm::Jpeg},    {".webp", PictureForm::WebP},
};

/// In small letters, as people write ".TIF" too.
std::string endingOf(fs::path const& file) {
    std::string text = textOf(file.extension());
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
    return text;
}

}  // namespace

PictureForm formOf(fs::path const& file) {
    std::string const ending = endingOf(file);
    auto const found =
        std::ranges::find_if(Endings, [&](Ending const& each) { return ending == each.text; });
    if (found != std::end(Endings))
        return found->form;
    throw CallError("the ending of " + inQuotes(textOf(file), 1000) +
                    " tells no form of pictures; known are .tif, .png, .jpg and .webp");
}

std::vector<fs::path> companionsOf(fs::path const& file) {
    std::vector<fs::path> all;
    for (char const* const ending : {".aux.xml", ".msk", ".ovr"})
        all.push_back(fs::path(file) += ending);
    PictureForm const form = formOf(file);
    if (form == PictureForm::Png || form == PictureForm::Jpeg)
        all.push_back(fs::path(file).replace_extension(".wld"));
    return all;
}

}  // namespace workbench
