#include "support/TaloTest.hpp"
#include <tessera/MakeStrong.hpp>
#include <tessera/NoDestructor.hpp>

namespace {

using Tessera::makeStrong;
using Tessera::StrongPtr;
using Tessera::watch;
using Tessera::WeakPtr;

struct Base : Tessera::ReferenceBase<Base> {};

struct Counted : virtual Base {
    Counted(int* destroyed, std::string name) : destroyed_(destroyed), name_(std::move(name)) {}
    ~Counted() override { ++*destroyed_; }
    int* destroyed_;
    std::string name_;
};

static_assert(std::is_same_v<Tessera::CountedBase<Counted>, Base>);
static_assert(std::is_same_v<Tessera::CountedBase<Counted const>, Base>);
static_assert(std::is_same_v<Tessera::CountedBase<Base>, Base>);
static_assert(std::is_same_v<decltype(watch(std::declval<Counted*>())), WeakPtr<Counted, Base>>);

class MakeStrong : public TaloTest {
protected:
    int destroyed_ = 0;
};

TEST_F(MakeStrong, MakesAnObjectThatItsReferencesDelete) {
    StrongPtr<Counted, Base> counted = makeStrong<Counted>(&destroyed_, "a name");
    EXPECT_EQ(counted->name_, "a name");
    StrongPtr<Base> const base = counted;
    counted.reset();
    EXPECT_EQ(destroyed_, 0);
    EXPECT_TRUE(base);
}

TEST_F(MakeStrong, TheLastReferenceDeletesTheObject) {
    { auto const counted = makeStrong<Counted>(&destroyed_, "a name"); }
    EXPECT_EQ(destroyed_, 1);
}

TEST_F(MakeStrong, AWatchedObjectIsNotDeletedAndEmptiesItsReferences) {
    WeakPtr<Base> reference;
    {
        Counted counted(&destroyed_, "on the stack");
        reference = watch(&counted);
        EXPECT_EQ(watch(&counted).strong()->name_, "on the stack");
        EXPECT_EQ(destroyed_, 0);
    }
    EXPECT_EQ(destroyed_, 1);
    EXPECT_FALSE(reference);
    EXPECT_FALSE(watch(static_cast<Counted*>(nullptr)));
}

struct Object {
    Object(int* destroyed, int number) : destroyed_(destroyed), number_(number) {}
    ~Object() { ++*destroyed_; }
    int* destroyed_;
    int number_;
};

TEST_F(MakeStrong, WhatHasNoDestructorIsMadeFromItsArgumentsAndStays) {
    {
        Tessera::NoDestructor<Object> object(&destroyed_, 3);
        EXPECT_EQ(object->number_, 3);
        EXPECT_EQ((*object).destroyed_, &destroyed_);
        EXPECT_EQ(object.get(), &*object);
    }
    EXPECT_EQ(destroyed_, 0);
}

static_assert(std::is_trivially_destructible_v<Tessera::NoDestructor<Object>>);
static_assert(alignof(Tessera::NoDestructor<std::max_align_t>) == alignof(std::max_align_t));

} // namespace
