# Fixed-kernel filters: every member against its kernel applied to windows built from the
# border rule, the derivatives' signs, the check orders and the queries.
kroi_add_test(fixed_test filter/fixed_filter_test.cpp)
