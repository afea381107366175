# Border rules, border copies, the box filter and the window sums.
kroi_add_test(border_copy_test filter/border_copy_test.cpp)
target_include_directories(border_copy_test PRIVATE ${PROJECT_SOURCE_DIR}/src)
kroi_add_test(box_filter_test filter/box_filter_test.cpp)
kroi_add_test(box_checks_test filter/box_checks_test.cpp)
