#include "support/TaloTest.hpp"
#include <array>
#include <map>
#include <tessera/StringList.hpp>

namespace Sample {

struct Plain {};
template <typename T>
struct Box {};

} // namespace Sample

namespace {

using Tessera::Typename;

class Typenames : public TaloTest {};

TEST_F(Typenames, AreReadable) {
    EXPECT_EQ(Typename(typeid(bool)), "bool");
    EXPECT_EQ(Typename(typeid(int)), "int");
    EXPECT_EQ(Typename(typeid(double)), "double");
    EXPECT_EQ(Typename(typeid(std::string)), "std::string");
    EXPECT_EQ(Typename(typeid(std::array<std::string, 1>)), "std::array<std::string, 1>");
    EXPECT_EQ(Typename(typeid(Sample::Plain)), "Sample::Plain");
    EXPECT_EQ(Typename(typeid(Sample::Box<Sample::Box<std::string>>)), "Sample::Box<Sample::Box<std::string>>");
}

TEST_F(Typenames, ReferencesNameTheirBaseOnlyWhereItDiffers) {
    EXPECT_EQ(Typename(typeid(Tessera::StrongPtr<Sample::Plain>)), "Tessera::StrongPtr<Sample::Plain>");
    EXPECT_EQ(Typename(typeid(Tessera::WeakPtr<Sample::Plain>)), "Tessera::WeakPtr<Sample::Plain>");
    EXPECT_EQ(Typename(typeid(Tessera::StrongPtr<Sample::Plain, Tessera::StringList>)),
              "Tessera::StrongPtr<Sample::Plain, Tessera::StringList>");
}

TEST_F(Typenames, TheSecondQuestionGetsTheSameAnswer) {
    auto const first = Typename(typeid(Sample::Box<int>));
    EXPECT_EQ(first, "Sample::Box<int>");
    EXPECT_EQ(Typename(typeid(Sample::Box<int>)), first);
}

} // namespace
