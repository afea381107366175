# Two-image arithmetic.
kroi_add_test(arith_test arith/arith_rule_test.cpp arith/arith_check_test.cpp)

# The kroi commands.
add_test(NAME kroi_arith
  COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi> -DDATA=${CMAKE_CURRENT_SOURCE_DIR}/arith/data
    -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi_arith -P ${CMAKE_CURRENT_SOURCE_DIR}/arith/kroi_arith.cmake)
