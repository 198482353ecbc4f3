#pragma once

#include "msg-holder.h"
#include "proto.h"

#include <QObject>
#include <QString>
#include <cstdint>
#include <vector>

/// Holds the user's choice among the AI modes of the device's generation and sends it. Lives on the UI
/// thread.
///
/// An empty list of modes, which only K1 has, reads as `NONE`, and nothing is sent for it.
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
    /// A generation other than the one in use brings its own modes and chooses the first. Throws
    /// std::out_of_range for a number that is no generation.
    void setProto(int value);

    /// Chooses the next mode without sending.
    Q_INVOKABLE void nextAiPrior();
    /// Chooses a mode by its wire name and sends; an unknown name does nothing. On purpose: a mode that the
    /// generation does not have leaves the choice alone, which is sent all the same.
    Q_INVOKABLE void setAiPrior(QString aiPrior);
    /// The wire name of the chosen mode.
    Q_INVOKABLE QString enumAiPrior() const;

public slots:
    /// Has the screens read the choice again when the device tells its mode. On purpose: the choice is the
    /// user's, and the mode that the device tells does not move it.
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
    /// Until a generation is known there is one entry, so that a first K1 finds it in use and keeps it.
    std::vector<AiPriorEnum> aiPriros{AiPriorEnum::NONE};
};
