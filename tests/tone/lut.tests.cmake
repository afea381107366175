# Lookup tables: size query, initialisers and mapping against the interval rule.
kroi_add_test(lut_test tone/lut_test.cpp)

# Palette lookups at every bit size.
kroi_add_test(palette_test tone/palette_test.cpp)
