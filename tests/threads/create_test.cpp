/// Objects made on several threads at once.
#include <atomic>
#include <thread>

#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/Rendezvous.hpp"

namespace tests {
namespace {

using namespace Orlo;

class Creation : public PluginTest {};

TEST_F(Creation, OfEveryEntryMayHappenOnManyThreadsAtOnce) {
    constexpr unsigned Threads = 4, Rounds = 20;
    auto const creators = catalogue();
    std::atomic<unsigned> wrong{0};
    Rendezvous start(Threads);
    auto const work = [&](std::string const& name) {
        start.arriveAndWait();
        for (unsigned round = 0; round < Rounds; ++round)
            for (auto const& creator : creators) {
                ObjectPtr const object = creator->create(name, Nucleo::Intercube(), nullptr);
                if (object->Name() != name || !(object->creator() == creator))
                    wrong.fetch_add(1, std::memory_order_relaxed);
            }
    };
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < Threads; ++i)
        threads.emplace_back(work, "of thread " + std::to_string(i));
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0U);
    for (auto const& creator : creators)
        EXPECT_TRUE(creator->instances().empty()) << creator->keyname("/");
}

}  // namespace
}  // namespace tests
