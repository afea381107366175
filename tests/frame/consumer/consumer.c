/* Prints the library's name and allocates, fills and frees one image. */
#include <stdio.h>
#include <string.h>

#include <kroi.h>

int main(void)
{
    int step = 0;
    int y;
    Kro8u* p = kroiMalloc_8u_C3(17, 5, &step);
    if (!p || step != 64) {
        fprintf(stderr, "allocation failed (step %d)\n", step);
        return 1;
    }
    for (y = 0; y < 5; ++y) memset(p + y * step, y, 17 * 3);
    kroiFree(p);
    printf("%s\n", kroiGetLibVersion()->Name);
    return 0;
}
