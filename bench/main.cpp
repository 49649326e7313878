// The entry of the checks.
#include "main.h"

int main(int count, char** words) {
    return vemo::Main({words + (count > 0 ? 1 : 0), words + count});
}
