# Comparison masks.
kroi_add_test(compare_test tone/compare_test.cpp)
