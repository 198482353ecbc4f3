#include "port-advice.h"

#include <cerrno>
#include <cstring>
#include <pwd.h>
#include <unistd.h>

inline namespace kelvane {

static std::string userName() {
    const passwd *user = getpwuid(geteuid());
    return user ? user->pw_name : "$USER";
}

std::string adviceOnError(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return "permission denied: sudo adduser " + userName() + " dialout, then log out and in again";
    case EBUSY:
        return "in use by another program: end that one, and press again";
    case EIO:
    case ENODEV:
    case ENOENT:
    case ENXIO:
        return "the device has gone: plug it in again";
    case ENOTTY:
    case EINVAL:
        return "no serial line";
    default:
        return std::strerror(error);
    }
}

std::string adviceOnReply(const std::shared_ptr<Msg> &reply, std::chrono::milliseconds timeout) {
    if (!reply)
        return "no answer within " + std::to_string(timeout.count()) +
               " ms: the device is off or hung, is no detector, or another program reads the line; plug it "
               "in again";
    return "answered with " + MsgType(reply->getType()).name() +
           " instead of STATE: it may still be scanning; press again, or plug it in again";
}

std::string adviceOnRefusal(const Msg &request, Sent sent, std::chrono::milliseconds timeout) {
    const bool hasBegun = sent == Sent::PART;
    return "the device took " + std::string(hasBegun ? "only a part of " : "nothing of ") +
           MsgType(request.getType()).name() + " within " + std::to_string(timeout.count()) + " ms: " +
           (hasBegun ? "the rest is sent once it takes more"
                     : "it was not sent; if that stays so, plug the device in again");
}

} // namespace kelvane
