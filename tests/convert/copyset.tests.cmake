# Copy and Set.
kroi_add_test(copyset_test convert/copy_whole_test.cpp)
kroi_add_test(copyset_masked_test convert/copy_masked_test.cpp)
kroi_add_test(copyset_channel_test convert/copy_channel_test.cpp)
kroi_add_test(copyset_planar_test convert/copy_planar_test.cpp)
