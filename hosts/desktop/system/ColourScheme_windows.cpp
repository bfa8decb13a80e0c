// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourScheme.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QSettings>

#include <qt_windows.h>

namespace BatchDesktop {

namespace {

ColourScheme::Preference PreferenceOfUser()
{
    const QSettings personal(
        QStringLiteral(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"),
        QSettings::NativeFormat);
    const QVariant isLight = personal.value(QStringLiteral("AppsUseLightTheme"));
    if (!isLight.isValid()) {
        return ColourScheme::Preference::None;
    }
    return isLight.toBool() ? ColourScheme::Preference::Light : ColourScheme::Preference::Dark;
}

} // namespace

/// Reads the registry again whenever the system tells its windows that some setting has changed.
class ColourScheme::Link : public QAbstractNativeEventFilter
{
public:
    explicit Link(ColourScheme& owner)
        : owner(owner)
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray&, void* message, long*) override
    {
        if (static_cast<const MSG*>(message)->message == WM_SETTINGCHANGE) {
            owner.Set(PreferenceOfUser());
        }
        return false;
    }

private:
    ColourScheme& owner;
};

ColourScheme::ColourScheme(QObject* parent)
    : QObject(parent)
    , preference(PreferenceOfUser())
    , link(std::make_unique<Link>(*this))
{
}

ColourScheme::~ColourScheme() = default;

} // namespace BatchDesktop
