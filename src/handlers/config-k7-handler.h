#pragma once

#include "handlers/mirrored-property.h"
#include "msg-holder.h"
#include "msg/config-k7-msg.h"

#include <QObject>
#include <memory>

#define CONFIG_K7_PROPERTIES(PLAIN)      \
    PLAIN(bool, voiceEn, VoiceEn)        \
    PLAIN(int, dispLvl, DispLvl)         \
    PLAIN(int, dispOffTime, DispOffTime) \
    PLAIN(int, indHeadLvl, IndHeadLvl)   \
    PLAIN(int, indHeadMode, IndHeadMode) \
    PLAIN(bool, btEn, BtEn)              \
    PLAIN(int, btPowerDbm, BtPowerDbm)   \
    PLAIN(int, voiceDbLvl, VoiceDbLvl)

/// The settings front-end of CONFIG_K7, which devices from generation K7 on have. It mirrors that message as
/// `ConfigMsgHandler` mirrors CONFIG: receiving never causes sending. Lives on the UI thread.
class ConfigK7Handler : public QObject {
    Q_OBJECT
    CONFIG_K7_PROPERTIES(MIRRORED_PROPERTY)

public:
    explicit ConfigK7Handler(QObject *parent = nullptr);

    /// Setters store the value and emit nothing. They throw std::out_of_range for a number that is no
    /// enumerator.
    CONFIG_K7_PROPERTIES(MIRRORED_ACCESSORS)

    /// Sets the mode of the headset jack by its wire name and sends it. An unknown name does nothing.
    Q_INVOKABLE void setMode(QString mode);
    /// The wire name of the mode of the headset jack.
    Q_INVOKABLE QString enumMode() const;

public slots:
    /// Copies a CONFIG_K7 and emits every Notify signal. Ignores other messages.
    void accept(MsgHolder holder);

signals:
    /// The user has edited something. On purpose: the message is always sent, also before the first
    /// CONFIG_K7. Generations without these settings do not show the controls.
    void changed();
    /// A message to send. The holder shares the settings of this object, no copy.
    void gotMsg(MsgHolder msg);
    CONFIG_K7_PROPERTIES(MIRRORED_SIGNAL)
    void stringModeChanged(); ///< No caller today.

private:
    void commit();

    const std::shared_ptr<ConfigK7Msg> msg;
};
