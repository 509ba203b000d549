// What's-this help: a control's topic by its number, and the text that the student is shown for it.
#pragma once

class QWidget;

// Gives the control its help topic: the number as its property "helpTopic", and as its what's-this text that
// of the number in HelpTopics.txt of the program's folder. Where the file or the number is missing the
// control has no such text.
void SetHelpTopic(QWidget* control, int topic);
