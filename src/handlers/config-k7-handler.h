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

/// Mirrors the CONFIG_K7 of devices from generation K7 on, as `ConfigMsgHandler` does the CONFIG of all:
/// receiving never causes sending. Lives on the UI thread.
class ConfigK7Handler : public QObject {
    Q_OBJECT
    CONFIG_K7_PROPERTIES(MIRRORED_PROPERTY)

public:
    explicit ConfigK7Handler(QObject *parent = nullptr);

    /// Setters store and emit nothing; they throw std::out_of_range for a number that is no enumerator.
    CONFIG_K7_PROPERTIES(MIRRORED_ACCESSORS)

    /// Sets the mode of the headset jack by its wire name and sends; an unknown name does nothing.
    Q_INVOKABLE void setMode(QString mode);
    /// The wire name of the mode of the headset jack.
    Q_INVOKABLE QString enumMode() const;

public slots:
    /// Takes over a CONFIG_K7 and emits every Notify signal; ignores other messages.
    void accept(MsgHolder holder);

signals:
    /// The user has edited something. On purpose: sent always, also before the device has told its settings;
    /// on generations without them the controls are out of reach.
    void changed();
    /// To be sent. The holder shares the live settings.
    void gotMsg(MsgHolder msg);
    CONFIG_K7_PROPERTIES(MIRRORED_SIGNAL)
    void stringModeChanged(); ///< No caller today.

private:
    void commit();

    const std::shared_ptr<ConfigK7Msg> msg;
};
