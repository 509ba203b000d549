// Message boxes, modal over the active window. Texts are in the store's character set and always plain.
#pragma once

#include <string_view>

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Information, Exclamation };
enum class Answer { Ok, Yes, No, Cancel };

// The button that Enter presses as the box opens: the first one, or No where Yes destroys what is stored or
// typed.
enum class Preset { First, No };

inline constexpr std::string_view BoxTitle = "Planovarium";

// Shows the box and gives the button that closed it; Escape and closing it by its frame are Cancel, or No
// where there is no Cancel, or Ok where there is neither.
Answer MsgBox(std::string_view text, Buttons buttons, Icon icon, std::string_view title = BoxTitle,
              Preset preset = Preset::First);

// Shows the text of a run-time error that nothing handled, under the title "Planovarium".
void ShowFatalError(std::string_view text);
