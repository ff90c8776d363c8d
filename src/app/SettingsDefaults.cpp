#include "app/SettingsDefaults.h"

#include <QDir>

SettingsDefaults::SettingsDefaults(const QString& dataDir)
    : settings_(dataDir.isEmpty()
                    ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                  "calorie-counter", "calorie-counter")
                    : std::make_unique<QSettings>(QDir(dataDir).filePath("defaults.ini"),
                                                  QSettings::IniFormat)) {}

std::optional<std::string> SettingsDefaults::stringForKey(const std::string& key) const {
    const QVariant value = settings_->value(QString::fromStdString(key));
    if (!value.isValid()) return std::nullopt;
    return value.toString().toStdString();
}

void SettingsDefaults::setObject(const std::string& value, const std::string& key) {
    settings_->setValue(QString::fromStdString(key), QString::fromStdString(value));
}

void SettingsDefaults::synchronize() { settings_->sync(); }
