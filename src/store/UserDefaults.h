#pragma once
// The user-defaults store as the core sees it; the app backs it with the platform's settings.

#include <optional>
#include <string>

class UserDefaults {
public:
    virtual ~UserDefaults() = default;
    virtual std::optional<std::string> stringForKey(const std::string& key) const = 0;
    virtual void setObject(const std::string& value, const std::string& key) = 0;
    virtual void synchronize() = 0;
};
