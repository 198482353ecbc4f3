#include "sig-type-colors.h"

QColor SigTypeColors::getColor(SigTypeEnum type) {
    switch (type) {
    // On purpose: one colour for both. Neither names a single class of signal.
    case SigTypeEnum::NONE:
    case SigTypeEnum::ALL:
        return QColor::fromRgba(0xff93cddd);
    case SigTypeEnum::WIFI:
        return QColor::fromRgba(0xff00b050);
    case SigTypeEnum::DIG:
        return QColor::fromRgba(0xffffc000);
    case SigTypeEnum::FPV:
        return QColor::fromRgba(0xffff0000);
    case SigTypeEnum::BLOCK:
        return QColor::fromRgba(0xffcccccc);
    }
    return QColor::fromRgba(0x00ffffff);
}
