#include "store/AppState.h"

AppState& AppState::shared() {
    static AppState* const state = new AppState;  // lives as long as the process, on purpose
    return *state;
}
