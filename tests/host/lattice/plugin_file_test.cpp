// What is looked at before a plug-in file is loaded: nothing of a file that is refused here has run.

#include "host/lattice/PluginLoaderTest.hpp"

#include <elf.h>
#include <lattice/InterfaceStamp.hpp>
#include <lattice/PluginFile.hpp>
#include <sys/stat.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class PluginFiles : public PluginLoaderTest {
protected:
    void expectRefused(std::string const& file, std::string const& reason) {
        auto const outcome = loader_.load(file);
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.message, "Cannot open the plug-in " + file + ": " + reason);
        EXPECT_THAT(loader_.files(), IsEmpty());
    }
    std::string changed(std::string content, std::size_t place, char byte) const {
        content[place] = byte;
        return write("changed.talo", content);
    }
    std::string const sample_ = contentOf(TALO_SAMPLE_PLUGIN);
};

TEST_F(PluginFiles, ThatAreNoLibraryAreRefusedForWhatTheyAre) {
    expectRefused(write("empty.talo", ""), "it is empty");
    expectRefused(write("text.talo", "#!/bin/sh\necho a plug-in\n"), "it is a text and no ELF file");
    expectRefused(write("picture.talo", std::string("\x89PNG\r\n\x1a\n\0\0", 10)), "it is no ELF file");
    expectRefused("/dev/zero", "it is no regular file");
    expectRefused(folder_.string(), "it is a folder");
}

TEST_F(PluginFiles, ForAnotherMachineAreRefused) {
    expectRefused(changed(sample_, EI_CLASS, ELFCLASS32), "it is for a machine of 32 bits");
    expectRefused(changed(sample_, EI_DATA, ELFDATA2MSB), "it is for another machine");
    expectRefused(changed(sample_, offsetof(Elf64_Ehdr, e_machine), EM_S390), "it is for another machine");
    expectRefused(changed(sample_, offsetof(Elf64_Ehdr, e_type), ET_REL), "it is an ELF file but no shared library");
    expectRefused(changed(sample_, offsetof(Elf64_Ehdr, e_phnum), 0), "its ELF header is damaged");
}

TEST_F(PluginFiles, ThatAreCutOffAnywhereAreRefused) {
    for (std::size_t const size :
         {std::size_t{1}, std::size_t{20}, std::size_t{70}, sample_.size() / 4, sample_.size() / 2, sample_.size() - 1})
        expectRefused(write("cut.talo", sample_.substr(0, size)), "it is cut off");
}

TEST_F(PluginFiles, OfTheLargestSizeAreReadAndLargerOnesAreNot) {
    auto const file = write("large.talo", sample_.substr(0, 4096));
    std::filesystem::resize_file(file, Kolt::PluginFile::LargestSize + 1);
    expectRefused(file, "it is larger than 256 MB");
    std::filesystem::resize_file(file, Kolt::PluginFile::LargestSize);
    EXPECT_THAT(loader_.load(file).message, Not(HasSubstr("256 MB")));
}

TEST_F(PluginFiles, WithoutTheirExportAreRefused) {
    std::string const file = TALO_NO_EXPORT_PLUGIN;
    EXPECT_EQ(loader_.load(file).message,
              "Cannot find the export TALO_API_2023_MAR_29__no_export_plugin in the plug-in " + file + ": it has none");
    auto const renamed = write("renamed.talo", sample_);
    EXPECT_EQ(loader_.load(renamed).message, "Cannot find the export TALO_API_2023_MAR_29__renamed in the plug-in " +
                                                 renamed + ": it has TALO_API_2023_MAR_29__sample_plugin");
    EXPECT_FALSE(isMapped(renamed));
}

TEST_F(PluginFiles, WithTheExportsOfSeveralPluginsAreRefused) {
    EXPECT_THAT(loader_.load(badPlugin("two_exports")).message,
                AllOf(StartsWith("Cannot open the plug-in " + badPlugin("two_exports") + ": it has several exports, "),
                      HasSubstr("TALO_API_2023_MAR_29__two_exports"),
                      HasSubstr("TALO_API_2023_MAR_29__second_export")));
}

TEST_F(PluginFiles, ForAnotherInterfaceOfTheHostAreRefused) {
    auto content = sample_;
    auto const place = content.find(Kolt::interfaceStamp);
    ASSERT_NE(place, std::string::npos) << "the plug-in has the stamp of the headers";
    content.replace(place, 4, "????");
    auto const file = write("sample_plugin.talo", content);
    EXPECT_EQ(loader_.load(file).message, "The plug-in " + file + " was built for another interface of the host (????" +
                                              std::string(Kolt::interfaceStamp + 4) + ", not " + Kolt::interfaceStamp +
                                              "). Build it again.");
    EXPECT_FALSE(isMapped(file));
}

TEST_F(PluginFiles, ThatDoNotSayForWhichInterfaceAreRefused) {
    EXPECT_EQ(loader_.load(badPlugin("without_stamp")).message,
              "The plug-in " + badPlugin("without_stamp") +
                  " does not say for which interface of the host it was built.");
}

} // namespace
