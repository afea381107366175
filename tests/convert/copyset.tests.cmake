# Copy and Set.
kroi_add_test(copyset_test convert/copy_whole_test.cpp)
