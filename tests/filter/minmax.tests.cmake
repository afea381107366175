# Min/max filters: every member against a brute-force window reference, the buffer-size
# formula, the check orders and the fixed 3x3 64f forms.
kroi_add_test(minmax_test filter/minmax_filter_test.cpp filter/minmax_checks_test.cpp)
