# What is delivered is hardened against faults in it: link `prism_hardened`.
#
# Windows has its own means, which its linker takes by itself: places that are not known
# beforehand, and data that are not run. The stack protector and the checked functions of
# the C library would need one runtime library more there. docs/decisions.md says what
# is left out, and why.
add_library(prism_hardened INTERFACE)
if(NOT WIN32)
  target_compile_options(prism_hardened INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
  target_link_options(prism_hardened INTERFACE
    $<$<CONFIG:Release>:-Wl,-z,relro,-z,now,-z,noexecstack>)
endif()
