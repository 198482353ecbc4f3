#include "ai-prior-handler.h"

#include "msg/ai-prior-msg.h"

#include <algorithm>
#include <memory>
#include <utility>

AiPriorHandler::AiPriorHandler(QObject *parent)
    : QObject(parent) {
    connect(this, &AiPriorHandler::changed, this, &AiPriorHandler::commit);
}

AiPriorEnum AiPriorHandler::selected() const {
    return aiPriros.empty() ? AiPriorEnum::NONE : aiPriros.at(vecPos);
}

QString AiPriorHandler::shortName() const {
    return QString::fromStdString(AiPrior(selected()).getShortName());
}

QString AiPriorHandler::enumAiPrior() const {
    return QString::fromStdString(AiPrior(selected()).name());
}

void AiPriorHandler::setProto(int value) {
    if (value == getProto())
        return;
    const Proto generation(static_cast<ProtoEnum>(value));
    aiPriros = generation.getAiPriors();
    proto = generation.getValue();
    vecPos = 0;
    emit aiChanged();
}

void AiPriorHandler::nextAiPrior() {
    ++vecPos;
    if (vecPos >= aiPriros.size())
        vecPos = 0;
    emit aiChanged();
}

void AiPriorHandler::setAiPrior(QString aiPrior) {
    const auto known = AiPrior::getEnumValue(aiPrior.toStdString());
    if (!known)
        return;
    const auto found = std::find(aiPriros.begin(), aiPriros.end(), *known);
    if (found != aiPriros.end())
        vecPos = static_cast<std::uint8_t>(found - aiPriros.begin());
    emit aiChanged();
    emit changed();
}

void AiPriorHandler::accept(MsgHolder holder) {
    if (holder.getAs<AiPriorMsg>())
        emit aiChanged();
}

void AiPriorHandler::commit() {
    if (aiPriros.empty())
        return;
    emit gotMsg(MsgHolder(AiPriorMsgBuilder().aiPrior(selected()).share()));
}
