// The same use of the public headers, compiled as C++ (built with -pedantic -Werror).
#include "header_c99.c"
