#include "tests/workbench/picture/readPng.hpp"

#include <memory>

#define STB_IMAGE_STATIC
#define STBI_ONLY_PNG
#define STBI_NO_STDIO
#define STB_IMAGE_IMPLEMENTATION
#include <stb/stb_image.h>

namespace tests {

std::optional<workbench::Image> readPng(std::string const& bytes) {
    int width = 0;
    int height = 0;
    int channels = 0;
    std::unique_ptr<stbi_uc, void (*)(void*)> const data(
        stbi_load_from_memory(reinterpret_cast<stbi_uc const*>(bytes.data()),
                              static_cast<int>(bytes.size()), &width, &height, &channels, 4),
        stbi_image_free);
    if (!data)
        return std::nullopt;
    workbench::Image image(width, height);
    stbi_uc const* pixel = data.get();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x, pixel += 4)
            image.at(x, y) = {pixel[0], pixel[1], pixel[2], pixel[3]};
    return image;
}

}  // namespace tests
