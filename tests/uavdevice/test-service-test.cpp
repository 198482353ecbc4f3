#include "simulator/test-service.h"

#include "inbox.h"

/// The simulator with pauses that end at once. The pauses are noted.
class TestServiceThreads : public testing::Test {
protected:
    static constexpr std::chrono::milliseconds MASK_TIME{2000};
    std::mutex mutex;
    std::vector<long> pauses; // ms
    Inbox inbox;
    TestService service{[this](std::chrono::milliseconds time) {
        {
            const std::lock_guard lock(mutex);
            pauses.push_back(time.count());
        }
        if (time == MASK_TIME)
            inbox.take();
        std::this_thread::sleep_for(std::chrono::milliseconds(time == MASK_TIME ? 20 : 1));
        EXPECT_TRUE(time != MASK_TIME || inbox.take().empty()) << "no scan meanwhile";
    }};

    TestServiceThreads() { service.addListener(inbox.listener); }

    std::shared_ptr<Msg> request(const std::string &type) {
        return service.acceptMsg(Msg::parseJson(R"({"type":")" + type + R"("})"));
    }
    std::shared_ptr<Msg> scan(bool on) { return service.acceptMsg(ScanMsgBuilder().scan(on).share()); }
    /// Stops the scan, then returns the pauses since the last call. A second stop changes nothing.
    std::vector<long> takePauses() {
        scan(false), scan(false);
        return std::exchange(pauses, {});
    }
};

TEST_F(TestServiceThreads, FiresEveryAnswerAndReturnsSome) {
    const auto config = messageCast<ConfigMsg>(request("GET_CONFIG"));
    EXPECT_EQ(config->getProto(), ProtoEnum::K7);
    EXPECT_EQ(config->getHwVers() + config->getFwVers() + config->getBootVers(), "0.00.00.0");
    EXPECT_EQ(config->getMd5Serial(), "000000");
    inbox.take();
    struct Case {
        std::string request, answer;
        bool returned;
    };
    for (const Case &c :
         {Case{"GET_AI_PRIOR", R"({|"aiPrior" : "DEFAULT",|"type" : "AI_PRIOR"|})", true},
          Case{"SCAN", R"({|"respOn" : "SCAN",|"type" : "OK"|})", true},
          Case{"CONFIG", R"({|"respOn" : "CONFIG",|"type" : "OK"|})", false},
          Case{"GET_CONFIG", R"({|"type" : "CONFIG"|})", true}, // the same as was sent
          Case{"CONFIG_K7", R"({|"respOn" : "CONFIG_K7",|"type" : "OK"|})", false},
          Case{"GET_CONFIG_K7", R"({|"type" : "CONFIG_K7"|})", true},
          Case{"AI_PRIOR", R"({|"respOn" : "AI_PRIOR",|"type" : "OK"|})", false},
          Case{"GET_AI_PRIOR", R"({|"type" : "AI_PRIOR"|})", true},
          Case{"TO_APP", R"({|"respOn" : "TO_APP",|"failMsg" : "test not implemented",|"type" : "FAIL"|})",
               false}}) {
        const auto returned = request(c.request);
        const auto fired = inbox.take();
        ASSERT_EQ(fired.size(), 1U) << c.request;
        EXPECT_EQ(MsgToJsonParser::toJson(fired[0]), wire(c.answer));
        EXPECT_EQ(returned, c.returned ? fired[0] : nullptr) << c.request;
    }
    EXPECT_EQ(request("GET_STATE"), nullptr);
    const int charge = inbox.next<StateMsg>()->getBattLvl();
    EXPECT_TRUE(charge >= 0 && charge <= 100) << charge;
}

TEST_F(TestServiceThreads, ScansAsItsSettingsSay) {
    for (const auto &[mode, period] : {std::pair(DetModeEnum::ECO, 5000), {DetModeEnum::CONT, 500}}) {
        service.acceptMsg(ConfigMsgBuilder().mode(mode).ranges({FreqModeEnum::STD_2400}).atten(10).share());
        EXPECT_TRUE(scan(true) && scan(true)) << "a second start changes nothing";
        inbox.next<ScanResultMsg>();
        const auto results = inbox.next<ScanResultMsg>()->getFreqs();
        ASSERT_EQ(results.size(), 15U);
        EXPECT_EQ(results[0]->getRssi(), -105);
        EXPECT_THAT(takePauses(), Each(period));
        inbox.take();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        EXPECT_TRUE(inbox.take().empty()) << "stopped";
    }
    // Settings change while it scans.
    scan(true);
    inbox.next<ScanResultMsg>();
    service.acceptMsg(
        ConfigMsgBuilder().wifiDet(true).ranges(std::vector(500, FreqModeEnum::EXT_1200)).share());
    service.acceptMsg(AiPriorMsgBuilder().aiPrior(AiPriorEnum::FIELD).share());
    inbox.take();
    inbox.next<ScanResultMsg>();
    const auto results = inbox.next<ScanResultMsg>()->getFreqs();
    ASSERT_EQ(results.size(), 45500U);
    const auto isWifi = [](const auto &result) { return result->getType() == SigTypeEnum::WIFI; };
    EXPECT_NEAR(std::count_if(results.begin(), results.end(), isWifi) / 45500.0, 20 / 101.0, 0.02);
    inbox.next<ScanResultMsg>();
    EXPECT_EQ(takePauses().back(), 5000);
}

TEST_F(TestServiceThreads, TurnsTheMaskAndScansOn) {
    for (const bool mask : {true, false}) { // first on a stopped scanner, then on one that scans
        EXPECT_EQ(request("SET_MASK"), nullptr);
        EXPECT_TRUE(inbox.next<MaskResultMsg>()->getMask());
        const auto result = inbox.next<ScanResultMsg>();
        EXPECT_EQ(result->getMask(), mask);
        EXPECT_EQ(result->getFreqs().size(), 221U) << "the ranges of the factory settings";
    }
    const auto all = takePauses();
    EXPECT_EQ(std::count(all.begin(), all.end(), MASK_TIME.count()), 2);
}

TEST(ScannerThreads, SettingsChangeWhileItScansAndASecondStopInARowThrows) {
    std::atomic<int> scans{0};
    Scanner scanner(std::make_shared<MsgListener>([&](auto) { ++scans; }), [](auto) {});
    scanner.stop(); // allowed, because it never ran
    scanner.start();
    scanner.start();
    // ThreadSanitizer sees a missing lock if the next scan comes before this thread takes another one.
    const auto awaitScan = [&] { await([&, seen = scans.load()] { return scans >= seen + 2; }); };
    scanner.setByConfig(ConfigMsgBuilder().ranges({FreqModeEnum::STD_2400}).share());
    awaitScan();
    scanner.setByAiPrior(AiPriorMsgBuilder().aiPrior(AiPriorEnum::FIELD).share());
    awaitScan();
    scanner.setMask();
    awaitScan();
    scanner.getRandBattery();
    awaitScan();
    scanner.stop();
    EXPECT_THROW(scanner.stop(), std::system_error);
}

TEST(ScannerThreads, AStopDuringAScanWaitsForNoPause) {
    std::atomic<bool> scans{false};
    int pauses = 0;
    Scanner scanner(std::make_shared<MsgListener>([&](auto) {
                        scans = true;
                        await([&] { return !scanner.isActive(); });
                    }),
                    [&](auto) { ++pauses; });
    scanner.start();
    await([&] { return scans.load(); });
    scanner.stop();
    EXPECT_EQ(pauses, 0);
}
