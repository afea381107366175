# Arithmetic with constants, bitwise logic and shifts.
kroi_add_test(arithc_logic_test arith/logic_bitwise_test.cpp)
kroi_add_test(arithc_shift_test arith/logic_shift_test.cpp)

# The kroi commands of the family.
add_test(NAME kroi_arithc COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DWORK=${CMAKE_CURRENT_BINARY_DIR}/kroi_arithc -P ${CMAKE_CURRENT_SOURCE_DIR}/arith/constlogic_kroi.cmake)
kroi_add_test(arithc_const_test arith/const_rule_test.cpp arith/const_shortcut_test.cpp arith/const_long_test.cpp
              arith/const_check_test.cpp)
