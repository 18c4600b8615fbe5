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

// Runs work(index, worker) for each index below `count`, in up to `jobs` threads of which this is one, and
// take(index, result) for each result: one at a time and in the order of the indices, in whichever thread is at hand.
// `worker` is below `jobs`, and no two calls at a time have the same. Ends early when `take` returns false, and with
// the first exception of any call.
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
            WorkOn(0);
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

    // The threads beside this one.
    class Threads {
    public:
        Threads(OrderedJobs& jobs, unsigned number) {
            try {
                for (unsigned worker = 1; worker < number; ++worker) {
                    threads.emplace_back([&jobs, worker] { jobs.WorkOn(worker); });
                }
            } catch (const std::system_error&) {
                // Those that there are do the work.
            }
        }
        Threads(const Threads&) = delete;
        Threads& operator=(const Threads&) = delete;
        ~Threads() {
            for (std::thread& thread : threads) {
                thread.join();
            }
        }

    private:
        std::vector<std::thread> threads;
    };

    void WorkOn(unsigned worker) {
        try {
            for (std::size_t begin = NextBatch(); begin < count; begin = NextBatch()) {
                const std::size_t end = std::min(count, begin + batch);
                for (std::size_t i = begin; i < end; ++i) {
                    slots[i % slots.size()] = work(i, worker);
                }
                HandIn(begin);
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

    // Takes the results of a finished batch and of those behind it that waited for it. Another thread does so if it is
    // at it or has one in front.
    void HandIn(std::size_t begin) {
        std::unique_lock lock(mutex);
        finished.push_back(begin);
        while (!stopped && !isTaking && std::erase(finished, taken) > 0) {
            isTaking = true;
            lock.unlock();
            const std::size_t end = std::min(count, taken + batch);
            for (std::size_t i = taken; i < end; ++i) {
                std::optional<Result>& slot = slots[i % slots.size()];
                if (!take(i, std::move(*slot))) {
                    Stop(nullptr);
                    return;
                }
                slot.reset();
            }
            lock.lock();
            taken = end;
            isTaking = false;
            somethingTaken.notify_all();
        }
    }

    void Stop(std::exception_ptr reason) {
        const std::lock_guard lock(mutex);
        stopped = true;
        if (!failure) {
            failure = std::move(reason);
        }
        somethingTaken.notify_all();
    }

    const std::size_t count;
    Work& work;
    Take& take;
    std::size_t batch = 1;
    // The results from `taken` on, each at the rest of its index.
    std::vector<std::optional<Result>> slots;

    std::mutex mutex;
    std::condition_variable somethingTaken;
    std::size_t next = 0;
    // Changed by the thread alone that takes results.
    std::size_t taken = 0;
    bool isTaking = false;
    std::vector<std::size_t> finished;
    bool stopped = false;
    std::exception_ptr failure;
};

template <class Work, class Take>
void RunInOrder(std::size_t count, unsigned jobs, Work work, Take take) {
    OrderedJobs<Work, Take>(count, work, take).Run(jobs);
}

} // namespace Vorn
