// The version record.
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "kroi.h"

// Field order and placement are part of the binary interface.
static_assert(offsetof(KroLibraryVersion, major) == 0 && offsetof(KroLibraryVersion, minor) == 4 &&
              offsetof(KroLibraryVersion, majorBuild) == 8 && offsetof(KroLibraryVersion, build) == 12 &&
              offsetof(KroLibraryVersion, targetCpu) == 16 && offsetof(KroLibraryVersion, Name) == 24 &&
              offsetof(KroLibraryVersion, Version) == 32 && offsetof(KroLibraryVersion, BuildDate) == 40 &&
              sizeof(KroLibraryVersion) == 48);

TEST(Version, Record)
{
    const KroLibraryVersion* v = kroiGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(kroiGetLibVersion(), v);
    EXPECT_EQ(v->major, KROI_EXPECT_MAJOR);
    EXPECT_EQ(v->minor, KROI_EXPECT_MINOR);
    EXPECT_EQ(v->majorBuild, KROI_EXPECT_MAJOR_BUILD);
    EXPECT_EQ(v->build, KROI_EXPECT_BUILD);
    EXPECT_EQ(std::memcmp(v->targetCpu, "t3\0\0", 4), 0);
    EXPECT_STREQ(v->Name, "kroIP SSE3 (t3)");
    char want[96];
    std::snprintf(want, sizeof want, "%d.%d.%d (r0x%08x)", v->major, v->minor, v->majorBuild,
                  unsigned(v->build));
    EXPECT_STREQ(v->Version, want);
    static const std::regex date("(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) ([1-9]|[12][0-9]|3[01]) [0-9]{4}");
    EXPECT_TRUE(std::regex_match(v->BuildDate, date)) << v->BuildDate;
}
