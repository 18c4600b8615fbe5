#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace Vorn {

// The number of jobs that a machine can run at a time, at least 1.
inline unsigned ProcessorCount() {
    return std::max(1U, std::thread::hardware_concurrency());
}

// Runs work(index, worker) for each index below `count`, in up to `jobs` threads, and take(index, result) in this
// thread for each result, in the order of the indices. `worker` is below `jobs`, and no two calls at a time have the
// same. Ends early when `take` returns false, and with the first exception of any call.
template <class Work, class Take>
class OrderedJobs {
public:
    OrderedJobs(std::size_t _count, Work& _work, Take& _take) : count(_count), work(_work), take(_take) {}

    void Run(unsigned jobs) {
        jobs = static_cast<unsigned>(std::min<std::size_t>(std::max(1U, jobs), count));
        if (jobs <= 1) {
            for (std::size_t i = 0; i < count && take(i, work(i, 0U)); ++i) {
            }
            return;
        }
        batch = std::clamp<std::size_t>(count / (jobs * kBatchesPerJob), 1, kLargestBatch);
        slots.resize(std::min(count, jobs * kWindowPerJob * batch));
        {
            const Threads threads(*this, jobs);
            TakeAll();
        }
        if (failure) {
            std::rethrow_exception(failure);
        }
    }

private:
    using Result = decltype(std::declval<Work&>()(std::size_t{}, 0U));

    // Small jobs are handed out several at a time, and results that nobody took yet are bounded.
    static constexpr std::size_t kBatchesPerJob = 8;
    static constexpr std::size_t kLargestBatch = 16;
    static constexpr std::size_t kWindowPerJob = 16;

    // The threads, which end when the results are taken or one of them failed.
    class Threads {
    public:
        Threads(OrderedJobs& _jobs, unsigned number) : jobs(_jobs) {
            for (unsigned worker = 0; worker < number; ++worker) {
                try {
                    threads.emplace_back([this, worker] { jobs.WorkOn(worker); });
                } catch (const std::system_error&) {
                    if (threads.empty()) {
                        throw;
                    }
                    break;
                }
            }
        }
        Threads(const Threads&) = delete;
        Threads& operator=(const Threads&) = delete;
        ~Threads() {
            jobs.Stop(nullptr);
            for (std::thread& thread : threads) {
                thread.join();
            }
        }

    private:
        OrderedJobs& jobs;
        std::vector<std::thread> threads;
    };

    void WorkOn(unsigned worker) {
        try {
            for (std::size_t begin = NextBatch(); begin < count; begin = NextBatch()) {
                const std::size_t end = std::min(count, begin + batch);
                for (std::size_t i = begin; i < end; ++i) {
                    slots[i % slots.size()] = work(i, worker);
                }
                const std::lock_guard lock(mutex);
                finished.push_back(begin);
                somethingDone.notify_one();
            }
        } catch (...) {
            Stop(std::current_exception());
        }
    }

    // The first index of the next batch once there is room for its results, or `count` when there is nothing to do.
    std::size_t NextBatch() {
        std::unique_lock lock(mutex);
        const std::size_t begin = next;
        if (stopped || begin >= count) {
            return count;
        }
        next += batch;
        somethingTaken.wait(lock, [&] { return stopped || std::min(count, begin + batch) <= taken + slots.size(); });
        return stopped ? count : begin;
    }

    void TakeAll() {
        while (taken < count) {
            const std::size_t begin = taken;
            const std::size_t end = std::min(count, begin + batch);
            {
                std::unique_lock lock(mutex);
                const auto isDone = [&] { return stopped || std::ranges::find(finished, begin) != finished.end(); };
                somethingDone.wait(lock, isDone);
                if (stopped) {
                    return;
                }
                std::erase(finished, begin);
            }
            for (std::size_t i = begin; i < end; ++i) {
                std::optional<Result>& slot = slots[i % slots.size()];
                if (!take(i, std::move(*slot))) {
                    return;
                }
                slot.reset();
            }
            const std::lock_guard lock(mutex);
            taken = end;
            somethingTaken.notify_all();
        }
    }

    void Stop(std::exception_ptr reason) {
        const std::lock_guard lock(mutex);
        stopped = true;
        if (!failure) {
            failure = std::move(reason);
        }
        somethingDone.notify_all();
        somethingTaken.notify_all();
    }

    const std::size_t count;
    Work& work;
    Take& take;
    std::size_t batch = 1;
    // The results from `taken` on, each at the rest of its index.
    std::vector<std::optional<Result>> slots;

    std::mutex mutex;
    std::condition_variable somethingDone;
    std::condition_variable somethingTaken;
    std::size_t next = 0;
    std::size_t taken = 0;
    std::vector<std::size_t> finished;
    bool stopped = false;
    std::exception_ptr failure;
};

template <class Work, class Take>
void RunInOrder(std::size_t count, unsigned jobs, Work work, Take take) {
    OrderedJobs<Work, Take>(count, work, take).Run(jobs);
}

} // namespace Vorn
