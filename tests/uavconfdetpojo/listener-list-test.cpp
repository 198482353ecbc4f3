#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "listener-list.h"

namespace {

using Listener = std::function<void()>;

struct Calls {
    ListenerList<Listener> list;
    std::string order;

    std::shared_ptr<Listener> add(
        char name, std::function<void()> action = [] {}) {
        const auto listener = std::make_shared<Listener>([this, name, action = std::move(action)] {
            order += name;
            action();
        });
        list.add(listener);
        return listener;
    }
    std::string fire() {
        order.clear();
        list.fire([](const Listener &listener) { listener(); });
        return order;
    }
};

} // namespace

TEST(ListenerList, ListenersChangeTheListWhileTheyAreCalled) {
    Calls calls;
    std::shared_ptr<Listener> a, b, c, d;
    a = calls.add('a');
    b = calls.add('b', [&] { calls.list.remove(b), b.reset(); });
    c = calls.add('c', [&] { calls.list.remove(a), calls.list.remove(d), calls.add('e'); });
    d = calls.add('d');
    EXPECT_EQ(calls.fire(), "abce");
    calls.list.remove(c);
    EXPECT_EQ(calls.fire(), "e");
    calls.add('f', [&] { throw 1; });
    calls.add('g');
    EXPECT_THROW(calls.fire(), int);
    EXPECT_EQ(calls.order, "ef");
}

TEST(ListenerList, RemovalLooksAtEverySecondOfEqualNeighbours) {
    Calls calls;
    const auto a = calls.add('a');
    calls.list.add(a);
    calls.list.add(a);
    calls.add('b');
    calls.list.remove(a);
    EXPECT_EQ(calls.fire(), "ab");
}

TEST(ListenerListThreads, ARemovedListenerHasEnded) {
    ListenerList<Listener> list;
    std::atomic<bool> done{false};
    const auto fire = [&] {
        while (!done) {
            list.fire([](const Listener &listener) { listener(); });
        }
    };
    std::thread first(fire), second(fire);
    for (int i = 0; i < 300; ++i) {
        std::atomic<int> steps{0};
        const auto listener = std::make_shared<Listener>([&steps] {
            ++steps;
            std::this_thread::yield();
            ++steps;
        });
        list.add(listener);
        while (steps == 0) {
            std::this_thread::yield();
        }
        list.remove(listener);
        EXPECT_EQ(steps % 2, 0);
    }
    done = true;
    first.join();
    second.join();
}

TEST(ListenerListThreads, RunningListenersMayRemoveEachOther) {
    ListenerList<Listener> list;
    std::shared_ptr<Listener> pair[2];
    std::atomic<int> running{0};
    for (const int self : {0, 1}) {
        pair[self] = std::make_shared<Listener>([&, self] {
            for (++running; running < 2;) {
                std::this_thread::yield();
            }
            list.remove(pair[1 - self]);
        });
        list.add(pair[self]);
    }
    const auto fireOne = [&](int self) {
        list.fire([&](const Listener &listener) {
            if (&listener == pair[self].get()) {
                listener();
            }
        });
    };
    std::thread other(fireOne, 1);
    fireOne(0);
    other.join();
    list.fire([](const Listener &) { ADD_FAILURE() << "both are gone"; });
}
