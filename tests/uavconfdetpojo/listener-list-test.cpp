#include "listener-list.h"

#include "testing.h"

using Listener = std::function<void()>;

TEST(ListenerList, ListenersChangeTheListWhileTheyAreCalled) {
    ListenerList<Listener> list;
    std::string calls;
    const auto make = [&](
                          char name, Listener action = [] {}) {
        return std::make_shared<Listener>([&calls, name, action] { calls += name, action(); });
    };
    const auto fire = [&] { list.fire([](const Listener &listener) { listener(); }); };
    const auto a = make('a'), d = make('d'), e = make('e');
    std::shared_ptr<Listener> b = make(
        'b', [&, end = std::shared_ptr<void>(
                     &list, [&](auto) { list.remove(e); })] { list.remove(b), b.reset(); });
    const auto c = make('c', [&] { list.remove(a), list.remove(d), list.add(e), list.add(e); });
    for (const auto &listener : {a, b, c, d})
        list.add(listener);
    fire();
    list.remove(c);
    list.remove(e); // of two in a row, one stays
    list.add(make('f', [] { throw 1; }));
    list.add(a);
    EXPECT_THROW(fire(), int);
    EXPECT_EQ(calls, "abcee"
                     "ef");
}

TEST(ListenerListThreads, RemovalWaitsForTheRunningListener) {
    for (const bool throws : {false, true}) {
        ListenerList<Listener> list;
        std::atomic<bool> running{false}, removed{false}, ended{false}, again{false};
        const auto listener = std::make_shared<Listener>([&] {
            again = ended.load();
            running = true;
            std::this_thread::sleep_for(50ms); // a removal that does not wait would end long before this
            EXPECT_FALSE(removed);
            ended = true;
            if (throws)
                throw 1;
        });
        list.add(listener);
        list.add(std::make_shared<Listener>([&] { // the removal does not wait for this one
            await([&] { return removed.load(); });
        }));
        const auto fire = [&] {
            try {
                list.fire([](const Listener &each) { each(); });
            } catch (int) {
            }
        };
        auto firing = meanwhile(fire);
        await([&] { return running.load(); });
        list.remove(listener);
        EXPECT_TRUE(ended);
        removed = true;
        firing.wait();
        fire();
        EXPECT_FALSE(again);
    }
}

TEST(ListenerListThreads, RunningListenersMayRemoveEachOtherInARing) {
    for (const int count : {2, 3}) {
        ListenerList<Listener> list;
        std::vector<std::shared_ptr<Listener>> ring(count);
        std::atomic<int> running{0};
        for (int self = 0; self < count; ++self) {
            ring[self] = std::make_shared<Listener>([&, self] {
                ++running;
                await([&] { return running == count; });
                list.remove(ring[(self + 1) % count]);
            });
            list.add(ring[self]);
        }
        const auto fireOne = [&](int self) {
            list.fire([&](const Listener &listener) { &listener == ring[self].get() ? listener() : void(); });
        };
        std::vector<std::future<void>> rounds;
        for (int self = 0; self < count; ++self)
            rounds.push_back(meanwhile([&, self] { fireOne(self); }));
        rounds.clear();
        list.fire([](const Listener &) { ADD_FAILURE() << "all are gone"; });
    }
}
