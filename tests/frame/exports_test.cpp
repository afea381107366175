// The built library file: its exported names against the header and the export list, each
// export's stub and entry-table slot, the table's relocations, and its dependencies.  Read
// straight from the ELF file, so that nothing the loader or a tool might hide is missed.
#include <elf.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "export_list.hpp"

namespace {

class ElfFile {
public:
    explicit ElfFile(const char* path)
    {
        std::ifstream in(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(in), {});
        if (bytes_.size() < sizeof(Elf64_Ehdr) || std::memcmp(bytes_.data(), ELFMAG, SELFMAG) != 0 ||
            bytes_[EI_CLASS] != ELFCLASS64)
            throw std::runtime_error(std::string("not a 64-bit ELF file: ") + path);
        const auto& eh = at<Elf64_Ehdr>(0);
        for (int i = 0; i < eh.e_shnum; ++i) sections_.push_back(at<Elf64_Shdr>(eh.e_shoff + i * eh.e_shentsize));
        shstr_ = sections_.at(eh.e_shstrndx).sh_offset;
    }

    const Elf64_Shdr* section(const char* name) const
    {
        for (const auto& s : sections_)
            if (std::strcmp(str(shstr_, s.sh_name), name) == 0) return &s;
        return nullptr;
    }
    const Elf64_Shdr* sectionAt(uint64_t addr) const
    {
        for (const auto& s : sections_)
            if ((s.sh_flags & SHF_ALLOC) && addr >= s.sh_addr && addr < s.sh_addr + s.sh_size) return &s;
        return nullptr;
    }
    const char* sectionName(const Elf64_Shdr& s) const { return str(shstr_, s.sh_name); }

    struct Symbol { std::string name; Elf64_Sym sym; };
    // The symbols of a symbol table (.dynsym or .symtab) with their names.
    std::vector<Symbol> symbols(const char* table) const
    {
        std::vector<Symbol> out;
        const Elf64_Shdr* s = section(table);
        if (!s) return out;
        const uint64_t strings = sections_.at(s->sh_link).sh_offset;
        for (uint64_t off = 0; off + sizeof(Elf64_Sym) <= s->sh_size; off += sizeof(Elf64_Sym)) {
            const auto& sym = at<Elf64_Sym>(s->sh_offset + off);
            out.push_back({str(strings, sym.st_name), sym});
        }
        return out;
    }

    // Bytes at a virtual address of a section with file contents.
    const unsigned char* code(uint64_t addr, uint64_t n) const
    {
        const Elf64_Shdr* s = sectionAt(addr);
        if (!s || s->sh_type == SHT_NOBITS || addr + n > s->sh_addr + s->sh_size) return nullptr;
        return bytes_.data() + s->sh_offset + (addr - s->sh_addr);
    }

    std::vector<Elf64_Rela> relocations(const char* name) const
    {
        std::vector<Elf64_Rela> out;
        if (const Elf64_Shdr* s = section(name))
            for (uint64_t off = 0; off + sizeof(Elf64_Rela) <= s->sh_size; off += sizeof(Elf64_Rela))
                out.push_back(at<Elf64_Rela>(s->sh_offset + off));
        return out;
    }

    std::set<std::string> needed() const
    {
        std::set<std::string> out;
        const Elf64_Shdr* d = section(".dynamic");
        const Elf64_Shdr* ds = section(".dynstr");
        if (!d || !ds) return out;
        for (uint64_t off = 0; off + sizeof(Elf64_Dyn) <= d->sh_size; off += sizeof(Elf64_Dyn)) {
            const auto& e = at<Elf64_Dyn>(d->sh_offset + off);
            if (e.d_tag == DT_NULL) break;
            if (e.d_tag == DT_NEEDED) out.insert(str(ds->sh_offset, e.d_un.d_val));
        }
        return out;
    }

private:
    template <class T>
    T at(uint64_t off) const
    {
        if (off + sizeof(T) > bytes_.size()) throw std::runtime_error("ELF read out of bounds");
        T v;
        std::memcpy(&v, bytes_.data() + off, sizeof v);
        return v;
    }
    const char* str(uint64_t table, uint64_t off) const
    {
        return reinterpret_cast<const char*>(bytes_.data() + table + off);
    }

    std::vector<unsigned char> bytes_;
    std::vector<Elf64_Shdr> sections_;
    uint64_t shstr_ = 0;
};

const ElfFile& lib()
{
    static const ElfFile f(KROIT3_FILE);
    return f;
}

// Every prototype of the public header, one line each: `Type name(args);` or `Type* name(...);`.
std::set<std::string> headerPrototypes()
{
    std::ifstream in(KROI_HEADER);
    static const std::regex proto(R"(^(const\s+)?[A-Za-z_]\w*\s*\**\s*(\w+)\s*\([^()]*\);\s*$)");
    std::set<std::string> names;
    std::smatch m;
    for (std::string line; std::getline(in, line);)
        if (std::regex_match(line, m, proto)) names.insert(m[2]);
    return names;
}

std::set<std::string> definedDynamic()
{
    std::set<std::string> names;
    for (const auto& s : lib().symbols(".dynsym"))
        if (s.sym.st_shndx != SHN_UNDEF && ELF64_ST_BIND(s.sym.st_info) != STB_LOCAL && !s.name.empty())
            names.insert(s.name);
    return names;
}

std::string diff(const std::set<std::string>& a, const std::set<std::string>& b)
{
    std::string out;
    for (const auto& n : a)
        if (!b.count(n)) out += " " + n;
    return out.empty() ? " (none)" : out;
}

}  // namespace

TEST(Exports, HeaderListAndLibraryAgree)
{
    const auto& list = kt::exportList();
    const std::set<std::string> listed(list.begin(), list.end());
    EXPECT_EQ(listed.size(), list.size()) << "a name is listed twice";
    const auto header = headerPrototypes();
    const auto exported = definedDynamic();
    ASSERT_FALSE(header.empty());
    EXPECT_EQ(header, listed) << "in the header only:" << diff(header, listed) << "\nlisted only:" << diff(listed, header);
    EXPECT_EQ(exported, listed) << "exported only:" << diff(exported, listed) << "\nlisted only:" << diff(listed, exported);
}

TEST(Exports, StubsJumpThroughTheirOwnSlotsInListOrder)
{
    const ElfFile& f = lib();
    std::map<std::string, Elf64_Sym> dyn, local;
    for (const auto& s : f.symbols(".dynsym")) dyn[s.name] = s.sym;
    for (const auto& s : f.symbols(".symtab")) local[s.name] = s.sym;
    ASSERT_TRUE(local.count("t3_kroEntryTable") && local.count("t3_kroEntryTableEnd"))
        << "the table's bounds are not in .symtab (stripped?)";
    const uint64_t table = local["t3_kroEntryTable"].st_value, end = local["t3_kroEntryTableEnd"].st_value;
    const auto& list = kt::exportList();
    EXPECT_EQ(end - table, 8 * list.size()) << "one 8-byte slot per listed name";
    const Elf64_Shdr* tableSection = f.sectionAt(table);
    ASSERT_NE(tableSection, nullptr);
    EXPECT_TRUE(tableSection->sh_flags & SHF_WRITE) << f.sectionName(*tableSection);

    std::map<uint64_t, Elf64_Rela> relative;
    for (const auto& r : f.relocations(".rela.dyn"))
        if (ELF64_R_TYPE(r.r_info) == R_X86_64_RELATIVE) relative[r.r_offset] = r;

    for (std::size_t i = 0; i < list.size(); ++i) {
        const std::string& name = list[i];
        SCOPED_TRACE(name);
        ASSERT_TRUE(dyn.count(name));
        const Elf64_Sym& stub = dyn[name];
        EXPECT_EQ(ELF64_ST_TYPE(stub.st_info), STT_FUNC);
        EXPECT_EQ(stub.st_size, 16u);
        EXPECT_EQ(stub.st_value % 16, 0u);
        const unsigned char* code = f.code(stub.st_value, 16);
        ASSERT_NE(code, nullptr);
        // jmp *disp32(%rip), then nothing but int3.
        ASSERT_EQ(code[0], 0xFF);
        ASSERT_EQ(code[1], 0x25);
        for (int k = 6; k < 16; ++k) EXPECT_EQ(code[k], 0xCC) << "byte " << k;
        int32_t disp;
        std::memcpy(&disp, code + 2, 4);
        const uint64_t slot = stub.st_value + 6 + int64_t(disp);
        EXPECT_EQ(slot, table + 8 * i) << "slot out of list order or outside the table";
        // The loader fills the slot with the address of the hidden implementation.
        ASSERT_TRUE(relative.count(slot)) << "no relative relocation of the slot";
        const std::string impl = "t3_" + name;
        ASSERT_TRUE(local.count(impl)) << impl << " missing";
        EXPECT_EQ(uint64_t(relative[slot].r_addend), local[impl].st_value) << impl;
        EXPECT_FALSE(dyn.count(impl)) << impl << " is exported";
    }
}

TEST(Exports, Dependencies)
{
#ifdef KROI_SANITIZE
    GTEST_SKIP() << "the sanitizer runtimes are linked in";
#endif
    const std::set<std::string> t3Allowed = {"libkrocore.so.10", "libc.so.6", "libm.so.6"};
    for (const auto& n : lib().needed()) EXPECT_TRUE(t3Allowed.count(n)) << "libkroit3 needs " << n;
    EXPECT_TRUE(lib().needed().count("libkrocore.so.10"));
    for (const auto& n : ElfFile(KROCORE_FILE).needed()) EXPECT_EQ(n, "libc.so.6") << "libkrocore needs " << n;
}
