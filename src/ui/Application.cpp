#include "ui/Application.h"

namespace {
ApplicationDelegate* current = nullptr;
}

ApplicationDelegate* Application::delegate() { return current; }
void Application::setDelegate(ApplicationDelegate* delegate) { current = delegate; }
