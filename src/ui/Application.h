#pragma once
// The running application as screens reach it: its delegate, which owns the calorie store,
// the window and the user defaults.

class CalorieStore;
class UserDefaults;
class Window;

class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;
    virtual CalorieStore& store() = 0;
    virtual Window* window() = 0;
    virtual UserDefaults* standardUserDefaults() = 0;
};

namespace Application {
ApplicationDelegate* delegate();
void setDelegate(ApplicationDelegate* delegate);
}  // namespace Application
