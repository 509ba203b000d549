// The one place where the store's bytes become text of the screen and back.
#pragma once

#include "platform/Formats.h"

#include <QString>

#include <string>
#include <string_view>

// The text as the screen shows it.
QString FromStore(std::string_view text);
QString FromScreen(const ScreenText& text);

// The text as the caption of a menu item. A menu takes "&" for the mark of a key, so each is doubled.
QString MenuText(std::string_view text);

// What a caption of a menu says, without the marks of its keys.
QString WithoutMnemonics(const QString& caption);

// The text with places in its long words at which a line may end. They are not seen.
QString Breakable(const QString& text);

// The text as a tool tip that shows it as it stands, whatever it is made of, broken into lines.
QString PlainTip(const QString& text);

// The text as the store holds it; a character that the set lacks becomes "?".
std::string ToStore(const QString& text);

// The same text with every character that the set lacks turned into "?".
QString WithinSet(const QString& text);
