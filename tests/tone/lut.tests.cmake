# Lookup tables: size query, initialisers and mapping against the interval rule.
kroi_add_test(lut_test tone/lut_test.cpp)

# Palette lookups at every bit size.
kroi_add_test(palette_test tone/palette_test.cpp)

# Alpha composition against the written-out rules; the library's div255 is compiled in from
# its header.
kroi_add_test(alpha_test tone/alpha_test.cpp)
target_include_directories(alpha_test PRIVATE ${PROJECT_SOURCE_DIR}/src)
set_source_files_properties(tone/alpha_test.cpp PROPERTIES COMPILE_OPTIONS -msse3)

# Premultiplication and key colours.
kroi_add_test(alpha_premul_test tone/alpha_premul_test.cpp)

# kroi lut and kroi composite on the demo's images, then usage errors.
add_test(NAME kroi_lutalpha COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-lutalpha -P ${CMAKE_CURRENT_SOURCE_DIR}/tone/lutalpha_kroi.cmake)
