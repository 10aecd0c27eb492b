#include <VellarkFoundation/Concurrency/ParallelLoop.hpp>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

// Each loop is a counter of rounds that threads take from. The pool keeps the loops whose callers still take; a free
// thread joins the first that has a round left. The caller takes rounds too, so a loop ends even when every thread is
// busy elsewhere or could not be started.

namespace vellark::ParallelLoop {

namespace {

class Loop {
public:
    Loop(std::size_t count, const std::function<void(std::size_t)>& body) : count_(count), body_(&body) {}

    // Takes rounds until none is left. The body is called only while a round is not done, that is while the caller of
    // the loop waits and the body stands.
    void work() {
        for (std::size_t index = next_++; index < count_; index = next_++) {
            run(index);
            finishRound();
        }
    }

    bool hasRounds() const { return next_ < count_; }

    void wait() {
        std::unique_lock lock(mutex_);
        allDone_.wait(lock, [&] { return done_ == count_; });
        if (error_) std::rethrow_exception(error_);
    }

private:
    void run(std::size_t index) {
        try {
            (*body_)(index);
        } catch (...) {
            const std::lock_guard lock(mutex_);
            if (!error_ || index < errorIndex_) {
                error_ = std::current_exception();
                errorIndex_ = index;
            }
        }
    }

    void finishRound() {
        const std::lock_guard lock(mutex_);
        if (++done_ == count_) allDone_.notify_all();
    }

    const std::size_t count_;
    const std::function<void(std::size_t)>* body_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::condition_variable allDone_;
    std::size_t done_ = 0;
    std::exception_ptr error_;
    std::size_t errorIndex_ = 0;
};

class Pool {
public:
    static Pool& shared() {
        static Pool pool;
        return pool;
    }

    void add(const std::shared_ptr<Loop>& loop) {
        {
            const std::lock_guard lock(mutex_);
            startThreads();
            loops_.push_back(loop);
        }
        changed_.notify_all();
    }

    void remove(const std::shared_ptr<Loop>& loop) {
        const std::lock_guard lock(mutex_);
        std::erase(loops_, loop);
    }

    ~Pool() {
        {
            const std::lock_guard lock(mutex_);
            isEnding_ = true;
        }
        changed_.notify_all();
        for (std::thread& thread : threads_)
            thread.join();
    }

private:
    // One thread less than the width, for the caller is the last one. A machine that refuses threads gets fewer.
    void startThreads() {
        if (isStarted_) return;
        isStarted_ = true;
        threads_.reserve(width() - 1);
        try {
            while (threads_.size() + 1 < width())
                threads_.emplace_back([this] { serve(); });
        } catch (const std::system_error&) {
        }
    }

    void serve() {
        while (const std::shared_ptr<Loop> loop = nextLoop())
            loop->work();
    }

    // Waits for a loop with rounds to take; nothing when the pool ends.
    std::shared_ptr<Loop> nextLoop() {
        std::unique_lock lock(mutex_);
        while (!isEnding_) {
            const auto found = std::ranges::find_if(loops_, [](const auto& loop) { return loop->hasRounds(); });
            if (found != loops_.end()) return *found;
            changed_.wait(lock);
        }
        return nullptr;
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::shared_ptr<Loop>> loops_;
    std::vector<std::thread> threads_;
    bool isStarted_ = false;
    bool isEnding_ = false;
};

}  // namespace

std::size_t width() {
    static const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    return cores;
}

void run(std::size_t count, const std::function<void(std::size_t)>& body) {
    if (count == 0) return;
    const auto loop = std::make_shared<Loop>(count, body);
    const bool isShared = count > 1 && width() > 1;
    if (isShared) Pool::shared().add(loop);
    loop->work();
    if (isShared) Pool::shared().remove(loop);
    loop->wait();
}

}  // namespace vellark::ParallelLoop
