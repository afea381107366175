// Every exported name must be tested: each name of the export list has to appear, as a whole
// word, in some file under tests/ other than this one.  A family that adds its list without
// tests for every member fails here.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "export_list.hpp"

TEST(Coverage, EveryExportAppearsInATest)
{
    namespace fs = std::filesystem;
    const fs::path self = fs::weakly_canonical(__FILE__);
    std::set<std::string> words;
    for (const auto& e : fs::recursive_directory_iterator(KROI_TESTS_DIR)) {
        if (!e.is_regular_file() || fs::weakly_canonical(e.path()) == self) continue;
        std::ifstream in(e.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        std::string word;
        for (char c : text) {
            if (std::isalnum(static_cast<unsigned char>(c)) || c == '_') {
                word += c;
            } else if (!word.empty()) {
                words.insert(word);
                word.clear();
            }
        }
        if (!word.empty()) words.insert(word);
    }
    std::string missing;
    int count = 0;
    for (const auto& name : kt::exportList())
        if (!words.count(name) && ++count <= 50) missing += " " + name;
    EXPECT_EQ(count, 0) << "exports named in no test:" << missing;
}
