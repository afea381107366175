# Two-image arithmetic.
kroi_add_test(arith_test arith/arith_rule_test.cpp arith/arith_check_test.cpp)

# The kernels themselves, compiled here from their header with the library's instruction
# baseline.
kroi_add_test(arith_kernel_test arith/arith_kernel_test.cpp)
target_include_directories(arith_kernel_test PRIVATE ${PROJECT_SOURCE_DIR}/src)
set_source_files_properties(arith/arith_kernel_test.cpp PROPERTIES COMPILE_OPTIONS -msse3)

# The kroi commands.
add_test(NAME kroi_arith
  COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi> -DDATA=${CMAKE_CURRENT_SOURCE_DIR}/arith/data
    -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi_arith -P ${CMAKE_CURRENT_SOURCE_DIR}/arith/kroi_arith.cmake)

# Abs, Sqr, Sqrt, Exp, Ln, MinEvery, MaxEvery: integers against exact references (quadruple
# precision for Exp and Ln), 32f within the stated ulps of correct rounding.
kroi_add_test(unary_int_test arith/unary_int_test.cpp)
target_link_libraries(unary_int_test PRIVATE quadmath)
kroi_add_test(unary_float_test arith/unary_float_test.cpp)
