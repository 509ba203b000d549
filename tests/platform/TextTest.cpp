// The store's bytes as text of the screen, and back.
#include "toolkit/Text.h"

#include <gtest/gtest.h>

namespace {

struct CharacterCase {
    const char* name;
    char byte;
    char16_t character;
};

// By the encoding standard's index of windows-1252.
constexpr CharacterCase Characters[] = {
    {"the tilde", '~', u'~'},
    {"the euro sign", '\x80', 0x20AC},
    {"a byte that windows-1252 does not use", '\x81', 0x81},
    {"the ellipsis", '\x85', 0x2026},
    {"S with caron", '\x8A', 0x160},
    {"opening single quotation mark", '\x91', 0x2018},
    {"closing double quotation mark", '\x94', 0x201D},
    {"the dash", '\x96', 0x2013},
    {"Y with diaeresis", '\x9F', 0x178},
    {"the blank that does not break", '\xA0', 0xA0},
    {"e with acute", '\xE9', 0xE9},
    {"y with diaeresis", '\xFF', 0xFF},
};

std::string StoredForm(const char16_t* text) {
    return ToStore(QString::fromUtf16(text));
}

} // namespace

TEST(StoreText, IsOneCharacterAByte) {
    for (const CharacterCase& row : Characters) {
        EXPECT_EQ(FromStore(std::string(1, row.byte)), QString(QChar(row.character))) << row.name;
        EXPECT_EQ(ToStore(QString(QChar(row.character))), std::string(1, row.byte)) << row.name;
    }
}

TEST(StoreText, DoublesEachAmpersandInAMenu) {
    EXPECT_EQ(MenuText("Q&A && more"), QStringLiteral("Q&&A &&&& more"));
    EXPECT_EQ(MenuText(""), QString());
}

TEST(StoreText, ComesBackUnchangedForEveryByte) {
    std::string bytes;
    for (int byte = 0; byte <= 0xFF; ++byte) {
        bytes += static_cast<char>(byte);
    }
    const QString text = FromStore(bytes);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(ToStore(text), bytes);
}

TEST(StoreText, HasAQuestionMarkForEachCharacterThatTheSetLacks) {
    EXPECT_EQ(StoredForm(u"a\u0142b"), "a?b");
    EXPECT_EQ(StoredForm(u"\u65E5\u672C"), "??");
    EXPECT_EQ(StoredForm(u"x\U0001F600y"), "x?y") << "two halves are one character";
    EXPECT_EQ(StoredForm(u"\u2028"), "?");
    EXPECT_EQ(ToStore(QString(QChar(0x80))), "?") << "its byte is the euro sign's";
}

TEST(StoreText, WithinTheSetStaysAsItIs) {
    EXPECT_EQ(WithinSet(QString::fromUtf16(u"\u201CCaf\u00E9\u201D \u2013 5 \u20AC")),
              QString::fromUtf16(u"\u201CCaf\u00E9\u201D \u2013 5 \u20AC"));
    EXPECT_EQ(WithinSet(QString::fromUtf16(u"Caf\u00E9 \u65E5")), QString::fromUtf16(u"Caf\u00E9 ?"));
}

TEST(StoreText, OfTheScreenIsUtf8) {
    EXPECT_EQ(FromScreen({"M\xC3\xA4rz"}), QString::fromUtf16(u"M\u00E4rz"));
}
