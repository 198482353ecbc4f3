#include "port-advice.h"

#include "messages.h"

#include <pwd.h>
#include <unistd.h>

TEST(PortAdvice, NamesTheRemedy) {
    const std::pair<int, const char *> errors[] = {
        {EBUSY, "in use by another program: end that one, and press again"},
        {EIO, "the device has gone: plug it in"},
        {ENODEV, "the device has gone: plug it in"},
        {ENOENT, "the device has gone: plug it in"},
        {ENXIO, "the device has gone: plug it in"},
        {ENOTTY, "no serial line"},
        {EINVAL, "no serial line"},
        {EMFILE, "Too many open files"}};
    for (const auto &[error, advice] : errors)
        EXPECT_THAT(adviceOnError(error), StartsWith(advice)) << error;
    EXPECT_THAT(adviceOnReply(nullptr, 100ms), AllOf(HasSubstr("within 100 ms"), HasSubstr("plug it")));
    EXPECT_THAT(adviceOnReply(std::make_shared<OkMsg>(), 100ms),
                AllOf(HasSubstr("answered with OK instead of STATE"), HasSubstr("press again")));
    EXPECT_THAT(adviceOnRefusal(GetConfigMsg(), Sent::PART, 30ms),
                HasSubstr("only a part of GET_CONFIG within 30 ms"));
    EXPECT_THAT(adviceOnRefusal(GetConfigMsg(), Sent::NOTHING, 5ms),
                HasSubstr("nothing of GET_CONFIG within 5 ms"));
}

/// Not the owner of the process where that is another, and not root.
TEST(PortAdvice, SendsTheUserToTheGroupOfThePorts) {
    const uid_t before = geteuid();
    EXPECT_TRUE(before != 0 || seteuid(65534) == 0);
    const std::string user = getpwuid(geteuid())->pw_name;
    for (const int error : {EACCES, EPERM})
        EXPECT_THAT(adviceOnError(error), HasSubstr("sudo adduser " + user + " dialout"));
    EXPECT_TRUE(before != 0 || seteuid(0) == 0);
    EXPECT_NE(user, "root");
}
