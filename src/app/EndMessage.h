#pragma once
// The program's last word, shown in a window of its own when there is a display to show it on.

#include <QString>

// A display a person looks at: not the offscreen or minimal platforms of tests and headless runs,
// where a window would wait for a click that never comes.
bool hasDisplay();

// Shows message in a small modal window and returns once the person has closed it (Quit,
// Escape or the window's close button). The app's other windows are hidden first.
void showEndMessageWindow(const QString& message);

// Makes endProgram() show its message in that window whenever there is a display.
void installEndMessageWindow();
