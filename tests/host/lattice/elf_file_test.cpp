// Nothing beyond the bytes is read, whatever they are. (The sanitizers see to that; here it does not crash.)

#include "support/TaloTest.hpp"

#include <fstream>
#include <lattice/ElfFile.hpp>
#include <link.h>
#include <random>
#include <sstream>

namespace {

using Kolt::ElfFile;
using testing::ElementsAre;
using testing::IsEmpty;

class ElfFiles : public TaloTest {
protected:
    static std::string contentOf(char const* file) {
        std::ostringstream content;
        content << std::ifstream(file, std::ios::binary).rdbuf();
        return content.str();
    }
    /// Asks for everything. The bytes are copied to memory of exactly their size, so that a read beyond them is seen.
    static bool isSound(std::string_view bytes) {
        std::vector<char> const exact(bytes.begin(), bytes.end());
        ElfFile const elf({exact.data(), exact.size()});
        static_cast<void>(elf.functions(""));
        static_cast<void>(elf.section(".talo.interface"));
        return elf.fault().empty();
    }
    std::string const sample_ = contentOf(TALO_SAMPLE_PLUGIN);
};

TEST_F(ElfFiles, ReadsTheFunctionsThatALibraryDefines) {
    ElfFile const elf(sample_);
    EXPECT_EQ(elf.fault(), "");
    EXPECT_THAT(elf.functions("TALO_API_"), ElementsAre("TALO_API_2023_MAR_29__sample_plugin"));
    EXPECT_THAT(elf.functions("dlopen"), IsEmpty());
    EXPECT_THAT(elf.functions(""), ElementsAre("TALO_API_2023_MAR_29__sample_plugin"))
        << "what it needs of others is not its own";
}

TEST_F(ElfFiles, ReadsASectionByItsWholeName) {
    ElfFile const elf(sample_);
    EXPECT_FALSE(elf.section(".text").empty());
    EXPECT_THAT(std::string(elf.section(".dynstr")), testing::HasSubstr("TALO_API_2023_MAR_29__sample_plugin"));
    EXPECT_TRUE(elf.section(".tex").empty());
    EXPECT_TRUE(elf.section("").empty());
}

TEST_F(ElfFiles, ALibraryWithoutATableOfSectionsHasFunctionsAlone) {
    auto bytes = sample_;
    auto* const header = reinterpret_cast<ElfW(Ehdr)*>(bytes.data());
    header->e_shoff = header->e_shnum = header->e_shstrndx = 0;
    ElfFile const elf(bytes);
    EXPECT_EQ(elf.fault(), "");
    EXPECT_THAT(elf.functions(""), ElementsAre("TALO_API_2023_MAR_29__sample_plugin"));
    EXPECT_TRUE(elf.section(".text").empty());
}

TEST_F(ElfFiles, EveryStartOfALibraryIsCutOff) {
    for (std::size_t size = 1; size < sample_.size(); size = size < 600 ? size + 1 : size + 97)
        ASSERT_EQ(ElfFile(std::string_view(sample_).substr(0, size)).fault(), "it is cut off") << size;
}

TEST_F(ElfFiles, AnyBytesCanBeLookedAt) {
    std::mt19937 random(20230329);
    int sound = 0;
    for (int round = 0; round < 3000; ++round) {
        auto bytes = sample_;
        // Most of all where the tables are described.
        for (unsigned change = 0; change < 1 + random() % 4; ++change) {
            auto const end = random() % 2 == 0 ? std::size_t{1200} : bytes.size();
            bytes[random() % end] = static_cast<char>(random() % 3 == 0 ? 0xff : random());
        }
        sound += isSound(std::string_view(bytes).substr(0, random() % 4 == 0 ? random() % bytes.size() : bytes.size()));
    }
    EXPECT_GT(sound, 100);
    EXPECT_LT(sound, 2900);
}

} // namespace
