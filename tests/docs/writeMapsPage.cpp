/// Writes the page of all maps and its pictures: write_maps_page ROOT
#include <exception>
#include <iostream>

#include "tests/docs/mapsPage.hpp"
#include "workbench/common/files.hpp"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: write_maps_page ROOT\n";
        return 2;
    }
    try {
        std::filesystem::path const root = argv[1];
        auto const files = tests::mapsPage(root);
        std::filesystem::remove_all(root / "docs/maps");
        std::filesystem::create_directories(root / "docs/maps");
        for (auto const& [name, bytes] : files)
            workbench::writeFile(root / "docs" / name, bytes);
    } catch (std::exception const& error) {
        std::cerr << "write_maps_page: " << error.what() << '\n';
        return 1;
    }
}
