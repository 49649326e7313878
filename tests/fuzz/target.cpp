// The entry of every fuzz target.
#include "target.h"

#include <cstddef>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vemo::Check({data, size});
    return 0;
}
