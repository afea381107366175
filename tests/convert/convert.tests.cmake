# Convert and Scale: every member against its rule, check order, guard pages, MXCSR.  Each
# program is several translation units of similar cost, so that they compile side by side.
kroi_add_test(convert_members_test convert/convert_plain_test.cpp convert/convert_rounded_test.cpp
  convert/convert_sfs_test.cpp)
target_include_directories(convert_members_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
kroi_add_test(scale_members_test convert/scale_int_test.cpp convert/scale_float_test.cpp
  convert/scale_const_narrow_test.cpp convert/scale_const_wide_test.cpp)
target_include_directories(scale_members_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

# The kroi subcommands of the family.
add_test(NAME kroi_convert COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
  -DSAMPLE=${CMAKE_CURRENT_SOURCE_DIR}/convert/convert_sample.png -DWORK=${CMAKE_CURRENT_BINARY_DIR}/kroi_convert
  -P ${CMAKE_CURRENT_SOURCE_DIR}/convert/convert_kroi.cmake)
