/// Has a unique symbol, as some compilers make them of each static member of a template.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

#if !defined(_WIN32)
__asm__(
    ".pushsection .data\n"
    ".globl theOnlyOne\n"
    ".type theOnlyOne, @gnu_unique_object\n"
    ".size theOnlyOne, 4\n"
    "theOnlyOne: .long 0\n"
    ".popsection\n");
#endif
