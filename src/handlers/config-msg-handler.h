#pragma once

#include "common/sens-level.h"
#include "handlers/mirrored-property.h"
#include "msg-holder.h"
#include "msg/config-msg.h"

#include <QObject>
#include <memory>

/// The fields of CONFIG. The setter of a PLAIN field only stores; that of an OWN field does more.
#define CONFIG_PROPERTIES(PLAIN, OWN)    \
    PLAIN(int, proto, Proto)             \
    PLAIN(bool, indLed, IndLed)          \
    PLAIN(bool, indSnd, IndSnd)          \
    PLAIN(bool, indVibro, IndVibro)      \
    PLAIN(int, indLedLvl, IndLedLvl)     \
    PLAIN(int, indSndLvl, IndSndLvl)     \
    OWN(int, mode, Mode)                 \
    PLAIN(int, wifiDet, WifiDet)         \
    PLAIN(int, uavDet, UavDet)           \
    OWN(QList<int>, ranges, Ranges)      \
    PLAIN(QString, hwVers, HwVers)       \
    PLAIN(QString, fwVers, FwVers)       \
    PLAIN(QString, bootVers, BootVers)   \
    PLAIN(QString, md5Serial, Md5Serial) \
    OWN(int, atten, Atten)

/// The settings front-end of CONFIG: mirrors the device's settings for the screens and sends the user's
/// edits. Enumerators are ints here.
///
/// Receiving never causes sending. Only `changed` leads to `gotMsg`. `changed` means a gesture of the user;
/// `accept` and the setters do not emit it. Plain setters emit nothing. Lives on the UI thread.
class ConfigMsgHandler : public QObject {
    Q_OBJECT
    CONFIG_PROPERTIES(MIRRORED_PROPERTY, MIRRORED_PROPERTY)
    Q_PROPERTY(QString stringMode READ stringMode NOTIFY stringModeChanged)
    Q_PROPERTY(QString sens READ getSens NOTIFY sensChanged)
    Q_PROPERTY(QString enumMode READ enumMode NOTIFY stringModeChanged)
    Q_PROPERTY(bool hasK7Settings READ hasK7Settings NOTIFY protoChanged)

public:
    explicit ConfigMsgHandler(QObject *parent = nullptr);

    /// Setters throw std::out_of_range for a number that is no enumerator. An empty list of ranges is
    /// ignored, because a device always has at least one range.
    CONFIG_PROPERTIES(MIRRORED_ACCESSORS, MIRRORED_ACCESSORS)

    /// True if the generation has the settings of CONFIG_K7.
    bool hasK7Settings() const { return msg->getProto() >= MsgType(MsgTypeEnum::CONFIG_K7).getSinceProto(); }
    /// The display name of the detection mode. No caller today.
    QString stringMode() const;
    /// The name of the sensitivity.
    QString getSens() const;

    /// Chooses the next sensitivity without sending it.
    Q_INVOKABLE void nextSens();
    /// Sets the detection mode by its wire name and sends it. An unknown name does nothing.
    Q_INVOKABLE void setStringMode(QString mode);
    /// The wire name of the detection mode.
    Q_INVOKABLE QString enumMode() const;

public slots:
    /// Copies a CONFIG and emits every Notify signal. Ignores other messages.
    void accept(MsgHolder holder);

signals:
    /// The user has edited something. Nothing is sent before the first CONFIG with ranges.
    void changed();
    /// A message to send. The holder shares the settings of this object, no copy.
    void gotMsg(MsgHolder msg);
    void accepted(); ///< No caller today.
    CONFIG_PROPERTIES(MIRRORED_SIGNAL, MIRRORED_SIGNAL)
    void sensChanged();
    void stringModeChanged();

private:
    void commit();

    const std::shared_ptr<ConfigMsg> msg;
    SensLevelEnum sens = SensLevelEnum::UNKNOWN;
};
