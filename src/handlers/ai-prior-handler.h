#pragma once

#include "msg-holder.h"
#include "proto.h"

#include <QObject>
#include <QString>
#include <cstdint>
#include <vector>

/// The settings front-end of the AI mode: holds the user's choice among the AI modes of the generation and
/// sends it. Lives on the UI thread.
///
/// Only K1 has no AI modes. The chosen mode is then `NONE`, and nothing is sent.
class AiPriorHandler : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString shortName READ shortName NOTIFY aiChanged)
    Q_PROPERTY(int proto READ getProto WRITE setProto NOTIFY protoChanged)
    Q_PROPERTY(QString enumAiPrior READ enumAiPrior NOTIFY aiChanged)

public:
    explicit AiPriorHandler(QObject *parent = nullptr);

    /// The short display name of the chosen mode. No caller today.
    QString shortName() const;

    int getProto() const { return static_cast<int>(proto); }
    /// Sets the generation. Another one than before brings its own modes, and the first of them is chosen.
    /// Throws std::out_of_range for a number that is no generation.
    void setProto(int value);

    /// Chooses the next mode without sending.
    Q_INVOKABLE void nextAiPrior();
    /// Chooses a mode by its wire name and sends it. An unknown name does nothing. On purpose: if the
    /// generation does not have the mode, the former choice stays and is sent again.
    Q_INVOKABLE void setAiPrior(QString aiPrior);
    /// The wire name of the chosen mode.
    Q_INVOKABLE QString enumAiPrior() const;

public slots:
    /// Makes the screens read the choice again when the device sends its mode. On purpose: the mode of the
    /// device does not change the choice, which is the user's.
    void accept(MsgHolder holder);

signals:
    /// The user has chosen.
    void changed();
    void gotMsg(MsgHolder msg);
    void aiChanged();
    void protoChanged(); ///< No caller today.

private:
    AiPriorEnum selected() const;
    void commit();

    ProtoEnum proto = ProtoEnum::K1;
    std::uint8_t vecPos = 0;
    /// One entry until another generation than K1 is set. A first CONFIG of a K1 changes nothing, so this
    /// entry stays.
    std::vector<AiPriorEnum> aiPriros{AiPriorEnum::NONE};
};
