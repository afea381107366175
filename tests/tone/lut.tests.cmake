# Lookup tables: size query, initialisers and mapping against the interval rule.
kroi_add_test(lut_test tone/lut_test.cpp)
