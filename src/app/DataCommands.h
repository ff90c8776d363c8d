#pragma once
// The data commands of the command line (export, backup, restore, new plan, finished set-up): run in place of a
// start, without a window, so that they also work over ssh.

#include "app/CommandLine.h"

// Runs options.dataCommand on the data folder, says what happened on stdout or why not on
// stderr, and returns the exit status: 0 when done, 1 when not.
int runDataCommand(const LaunchOptions& options);
