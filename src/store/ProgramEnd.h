#pragma once
// Ending the program where it cannot go on (no plan to show, no record for the day asked for).
// It ends as a program should: a message that names the cause, on stderr always and in front of
// the person when the app can show one, then exit status 1; never an abort or a core dump.

#include <functional>
#include <string>

// Shows the message to the person and returns once they have seen it; the app sets a window
// here when there is a display. Empty: stderr only.
void setProgramEndPresenter(std::function<void(const std::string& message)> presenter);

// Nothing is left to save at this point: every store operation has closed its file and the
// user defaults are synchronised when written, so the process exits without unwinding.
[[noreturn]] void endProgram(const std::string& message);
