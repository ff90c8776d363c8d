#pragma once
// One GUI application for every benchmark of the process that needs one (screens, the window),
// made on first use, drawing offscreen, with the kit's types and the style the program uses.

void ensureGuiApplication();
