/// Listeners: who hears what, when they come and go while news is told.
#include "host/creators/VActionNotifier.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace tests {
namespace {

using namespace Orlo;

/// Does something when it hears a warning.
class Acting : public VActionNotifier {
public:
    void warned(std::string const&) override {
        ++heard;
        if (act)
            act();
    }
    int heard = 0;
    std::function<void()> act;
};

TEST(Listeners, MayGoWhileTheyHear) {
    auto first = std::make_unique<Acting>(), second = std::make_unique<Acting>();
    auto self = std::make_unique<Acting>();
    Acting last;
    first->act = [&] { second.reset(); };
    self->act = [&] { self.reset(); };
    VActionNotifier::Warning("one");
    EXPECT_EQ(first->heard, 1);
    EXPECT_FALSE(second) << "destroyed before it would have heard";
    EXPECT_FALSE(self);
    EXPECT_EQ(last.heard, 1) << "nobody is left out";
    VActionNotifier::Warning("two");
    EXPECT_EQ(first->heard, 2);
    EXPECT_EQ(last.heard, 2);
}

TEST(Listeners, WhoComeWhileOthersHearHearTheNextNews) {
    std::vector<std::unique_ptr<Acting>> newcomers;
    Acting first;
    first.act = [&] {
        for (int i = 0; i < 100; ++i)
            newcomers.push_back(std::make_unique<Acting>());
        first.act = nullptr;
    };
    VActionNotifier::Warning("one");
    ASSERT_EQ(newcomers.size(), 100u);
    EXPECT_EQ(newcomers.back()->heard, 0);
    VActionNotifier::Warning("two");
    EXPECT_EQ(newcomers.back()->heard, 1);
}

}  // namespace
}  // namespace tests
