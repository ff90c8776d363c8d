#pragma once
// The user defaults over QSettings: one INI file, in the data folder when one is given.

#include <QSettings>
#include <memory>

#include "store/UserDefaults.h"

class SettingsDefaults : public UserDefaults {
public:
    // dataDir empty: the platform's per-user settings location.
    explicit SettingsDefaults(const QString& dataDir);

    std::optional<std::string> stringForKey(const std::string& key) const override;
    void setObject(const std::string& value, const std::string& key) override;
    void synchronize() override;

    QString fileName() const { return settings_->fileName(); }

private:
    std::unique_ptr<QSettings> settings_;
};
