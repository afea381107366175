# Ramps and test patterns against their closed forms; noise against the generator's
# transcription and sample statistics.
kroi_add_test(pattern_test generate/pattern_test.cpp)
kroi_add_test(noise_test generate/noise_test.cpp)
