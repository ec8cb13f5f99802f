#pragma once

#include "platform/MainQueue.h"

#include <cassert>
#include <coroutine>
#include <exception>
#include <functional>
#include <memory>
#include <utility>

namespace vantorel {

/// The right to resume a suspended job, once. When its last copy is dropped unused, the job is destroyed where
/// it stands, on the thread that drops it, with all it owns.
class Continuation {
 public:
  explicit Continuation(std::coroutine_handle<> job) : held_(std::make_shared<Held>(job)) {}
  void operator()() const {
    assert(held_->job && "resumed twice");
    std::exchange(held_->job, nullptr).resume();
  }

 private:
  struct Held {
    std::coroutine_handle<> job;
    explicit Held(std::coroutine_handle<> suspended) : job(suspended) {}
    Held(const Held &) = delete;
    ~Held() {
      if (job) job.destroy();
    }
  };
  std::shared_ptr<Held> held_;
};

/// A coroutine on the main queue, which must be its first argument. Nothing of it runs inside the call that
/// starts it; it then runs on the main thread and gives that up at each co_await of an Answer. Nobody waits
/// for it or holds it. Its arguments are kept for its whole life, so they are values or outlive it.
struct Job {
  class promise_type {
   public:
    template <typename... Arguments>
    explicit promise_type(MainQueue &queue, Arguments &&...) : queue_(queue) {}

    MainQueue &queue() const { return queue_; }
    Job get_return_object() const { return {}; }
    auto initial_suspend() const {
      struct FirstStep {
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<promise_type> job) const {
          job.promise().queue().async(Continuation(job));
        }
        void await_resume() const noexcept {}
      };
      return FirstStep{};
    }
    std::suspend_never final_suspend() const noexcept { return {}; }
    void return_void() const {}
    [[noreturn]] void unhandled_exception() const { std::terminate(); }

   private:
    MainQueue &queue_;
  };
};

/// What a job waits for, as a variable of its own: GCC 12 mishandles temporaries in a co_await. `ask`
/// gets a function to be called once, on any thread, with the answer.
template <typename T>
class Answer {
 public:
  using Receive = std::function<void(T)>;

  explicit Answer(std::function<void(Receive)> ask) : ask_(std::move(ask)) {}

  bool await_ready() const noexcept { return false; }
  void await_suspend(std::coroutine_handle<Job::promise_type> job) {
    const auto ask = std::move(ask_);  // this object may be gone before it returns
    ask([this, &queue = job.promise().queue(), continuation = Continuation(job)](T answer) {
      answer_ = std::move(answer);
      queue.async(continuation);
    });
  }
  T await_resume() { return std::move(answer_); }

 private:
  std::function<void(Receive)> ask_;
  T answer_{};
};

}  // namespace vantorel
