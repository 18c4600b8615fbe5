#include "tools/kelvanekit/orderedjobs.h"

#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>

namespace Vorn {

namespace {

TEST(OrderedJobsTest, ResultsComeInOrderForAnyNumberOfJobs) {
    for (const unsigned jobs : {1U, 2U, 3U, 16U}) {
        for (const std::size_t count : {0U, 1U, 2U, 17U, 5000U}) {
            std::vector<std::atomic<int>> busy(jobs);
            std::vector<std::size_t> order;
            RunInOrder(
                count, jobs,
                [&](std::size_t index, unsigned worker) {
                    EXPECT_EQ(busy[worker]++, 0);
                    // Later ones are often ready first.
                    for (std::size_t i = 0; i < index % 7; ++i) {
                        std::this_thread::yield();
                    }
                    --busy[worker];
                    return std::to_string(index);
                },
                [&](std::size_t index, const std::string& result) {
                    EXPECT_EQ(result, std::to_string(index));
                    order.push_back(index);
                    return true;
                });
            ASSERT_EQ(order.size(), count);
            EXPECT_TRUE(std::ranges::is_sorted(order));
        }
    }
}

TEST(OrderedJobsTest, EndsEarlyAndWithTheFirstException) {
    for (const unsigned jobs : {1U, 4U}) {
        std::size_t taken = 0;
        RunInOrder(
            100000, jobs, [](std::size_t index, unsigned) { return index; },
            [&](std::size_t index, std::size_t) {
                ++taken;
                return index < 9;
            });
        EXPECT_EQ(taken, 10u);
        const auto fail = [](std::size_t index, unsigned) {
            if (index == 70) {
                throw std::runtime_error("70");
            }
            return index;
        };
        EXPECT_THROW(RunInOrder(1000, jobs, fail, [](std::size_t, std::size_t) { return true; }), std::runtime_error);
        const auto failToTake = [](std::size_t, std::size_t) -> bool { throw std::logic_error("taken"); };
        EXPECT_THROW(RunInOrder(
                         1000, jobs, [](std::size_t index, unsigned) { return index; }, failToTake),
                     std::logic_error);
    }
}

} // namespace

} // namespace Vorn
