#include "workbench/picture/png.hpp"

#include <cstdlib>
#include <new>

#include "workbench/common/files.hpp"

namespace {

void* existing(void* memory) {
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void* allocate(std::size_t size) {
    return existing(std::malloc(size));
}

void* resize(void* memory, std::size_t size) {
    return existing(std::realloc(memory, size));
}

}  // namespace

// The encoder does not expect to run out of memory by itself.
#define STBIW_MALLOC allocate
#define STBIW_REALLOC resize
#define STBIW_FREE std::free
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_image_write.h>

namespace workbench {

std::string encodePng(Image const& image) {
    std::string bytes;
    auto const append = [](void* target, void* data, int size) {
        static_cast<std::string*>(target)->append(static_cast<char const*>(data),
                                                  static_cast<std::size_t>(size));
    };
    stbi_write_png_to_func(append, &bytes, image.width(), image.height(), 4, image.pixels().data(),
                           4 * image.width());
    return bytes;
}

void writePng(std::filesystem::path const& file, Image const& image) {
    writeFile(file, encodePng(image));
}

}  // namespace workbench
