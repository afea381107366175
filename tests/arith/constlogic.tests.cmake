# Arithmetic with constants, bitwise logic and shifts.
kroi_add_test(arithc_logic_test arith/logic_bitwise_test.cpp)
kroi_add_test(arithc_shift_test arith/logic_shift_test.cpp)
