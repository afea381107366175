# Median filters: every member against a sort of each window, the check orders, the query.
kroi_add_test(median_test filter/median_filter_test.cpp filter/median_checks_test.cpp)
