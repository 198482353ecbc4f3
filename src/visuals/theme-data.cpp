#include "visuals/theme-data.h"

#include <algorithm>

namespace {

/// An element of size 0 would not show, and a font of size 0 is invalid.
int atLeastOne(double size) {
    constexpr int FALLBACK = 10;
    const int truncated = static_cast<int>(size);
    return truncated < 1 ? FALLBACK : truncated;
}

} // namespace

int ThemeData::getFontSizeTiny() const {
    return fontSize(0.01, 1.5);
}
int ThemeData::getFontSizeSmall() const {
    return fontSize(0.015, 1.5);
}
int ThemeData::getFontSizeMedium() const {
    return fontSize(0.02, 1.5);
}
int ThemeData::getFontSizeLarge() const {
    return fontSize(0.025, 1.25); // On purpose: not 1.5. Headings must fit a narrow window too.
}

int ThemeData::getIconSizeSmall() const {
    return iconSize(0.05);
}
int ThemeData::getIconSizeMedium() const {
    return iconSize(0.08);
}
int ThemeData::getIconSizeLarge() const {
    return iconSize(0.1);
}

int ThemeData::getButtonSizeSmall() const {
    return buttonSize(0.2);
}
int ThemeData::getButtonSizeMedium() const {
    return buttonSize(0.3);
}
int ThemeData::getButtonSizeLarge() const {
    return buttonSize(0.4);
}

void ThemeData::setMenuHeight(int height) {
    menuHeight = height;
    emit menuHeightChanged();
}

int ThemeData::fontSize(double share, double widthFactor) const {
    return atLeastOne(std::min(share * windowWidth * widthFactor, share * windowHeight));
}

int ThemeData::iconSize(double share) const {
    return atLeastOne(share * std::min(windowWidth, windowHeight));
}

int ThemeData::buttonSize(double share) const {
    return atLeastOne(share * windowWidth);
}
