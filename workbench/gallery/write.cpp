#include "workbench/gallery/write.hpp"

#include "workbench/common/files.hpp"
#include "workbench/gallery/page.hpp"
#include "workbench/picture/png.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

constexpr int PictureHeight = 128;

}  // namespace

std::vector<fs::path> writeGallery(std::vector<Exhibit> const& exhibits, fs::path const& folder,
                                   std::string const& maker,
                                   std::function<void(double)> const& progress) {
    makeFolder(folder);
    std::vector<std::string> const words = wordsFor(exhibits);
    std::vector<fs::path> files;
    std::string sections;
    for (std::size_t i = 0; i < exhibits.size(); ++i) {
        progress(static_cast<double>(i) / static_cast<double>(exhibits.size()));
        files.push_back(folder / pictureName(words[i]));
        writePng(files.back(), rampOf(exhibits[i].samples, PictureHeight));
        sections += section(exhibits[i], words[i]);
    }
    files.push_back(folder / "index.html");
    writeFile(files.back(), page(exhibits, words, sections, maker));
    return files;
}

}  // namespace workbench
