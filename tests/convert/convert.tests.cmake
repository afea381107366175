# Convert and Scale: every member against its rule, check order, guard pages, MXCSR.
kroi_add_test(convert_members_test convert/convert_members_test.cpp)
target_include_directories(convert_members_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
kroi_add_test(scale_members_test convert/scale_members_test.cpp)
target_include_directories(scale_members_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
