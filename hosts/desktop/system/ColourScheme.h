// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

namespace BatchDesktop {

/// Whether the user prefers dark or light windows. Where nothing says so, nothing is preferred.
class ColourScheme : public QObject
{
    Q_OBJECT

public:
    enum class Preference { None, Dark, Light };

    explicit ColourScheme(QObject* parent = nullptr);
    ~ColourScheme() override;

    Preference Preferred() const { return preference; }

Q_SIGNALS:
    void Changed(ColourScheme::Preference preference);

private:
    class Link;

    void Set(Preference wanted);

    Preference preference = Preference::None;
    std::unique_ptr<Link> link;
};

} // namespace BatchDesktop
