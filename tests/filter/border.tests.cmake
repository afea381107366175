# Border rules, border copies, the box filter and the window sums.
kroi_add_test(border_copy_test filter/border_copy_test.cpp)
target_include_directories(border_copy_test PRIVATE ${PROJECT_SOURCE_DIR}/src)
kroi_add_test(box_filter_test filter/box_filter_test.cpp)
kroi_add_test(box_checks_test filter/box_checks_test.cpp)

# The kroi subcommands, on images that `kroi png-roundtrip` writes.
if(TARGET kroi)
  add_test(NAME kroi_border_box
    COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi> -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-border
            -P ${CMAKE_CURRENT_SOURCE_DIR}/filter/border_kroi.cmake)
endif()

# Work areas past 32 bits: the operations refuse what the queries cannot describe.
kroi_add_test(work_area_test filter/work_area_test.cpp)
