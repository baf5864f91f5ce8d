/// Libraries with exports that are nearly those of a plug-in, one for each definition.
#include "host/pointers/import.hpp"

#if defined(TWO_QUESTIONS)
extern "C" TELM_EXPORT int TELM_API_2024_MAR_06__one(void*) {
    return 1;
}
extern "C" TELM_EXPORT int TELM_API_2024_MAR_06__two(void*) {
    return 1;
}
#else
extern "C" TELM_EXPORT int TELM_API_2023_DEC_24__older(void*) {
    return 1;
}
#endif
