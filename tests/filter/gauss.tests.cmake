# Gaussian filter: every member against the kernel rule applied to windows built from the
# border rule, the kernel's sum, the check orders.
kroi_add_test(gauss_test filter/gauss_filter_test.cpp)
