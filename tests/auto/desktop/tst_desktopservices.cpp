// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DesktopServices.h"

#include "hosts/desktop/system/ApplicationColours.h"
#include "hosts/desktop/system/Notifier.h"
#include "hosts/desktop/system/SleepBlocker.h"
#include "hosts/desktop/system/TaskbarProgress.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QSignalSpy>
#include <QStyle>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace BatchDesktop;

/// What the window asks of the desktop, with services on a bus of the test's own.
class tst_DesktopServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void progressIsSaidToDocks();
    void notificationsAreShownAndReplaced();
    void namesAreEscapedWhereMarkupIsRead();
    void chosenActionsAreTold();
    void notificationsAreWithdrawn();
    void lastWishOfSeveralCounts();
    void sleepIsBlockedAndReleased();
    void answersThatComeTooLateAreGivenBack();
    void powerManagerStandsInForTheLoginManager();
    void absentServicesAreNoError();
    void coloursFollowTheUser();
    void darkDesktopsKeepTheirColours();
    void textIsReadableInTheDark();

private:
    std::unique_ptr<PrivateBus> bus;
};

namespace {

Notifier::Notice End(const QString& body)
{
    return {QStringLiteral("The end"), body, {{QStringLiteral("folder"), QStringLiteral("Open folder")}}};
}

/// Waits until the program's bus has answered what was asked before.
bool PassBy(const QDBusConnection& bus)
{
    const QDBusPendingCall call =
        bus.asyncCall(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
                                                     QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    const bool isAnswered = QTest::qWaitFor([&call] { return call.isFinished(); });
    QCoreApplication::processEvents();
    return isAnswered;
}

/// The contrast of two colours as defined by WCAG 2.1.
double Contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

void tst_DesktopServices::initTestCase()
{
    bus = std::make_unique<PrivateBus>();
    QVERIFY2(bus->Error().isEmpty(), qPrintable(bus->Error()));
    QVERIFY(QDBusConnection::sessionBus().isConnected());
}

void tst_DesktopServices::cleanupTestCase()
{
    bus.reset();
}

void tst_DesktopServices::progressIsSaidToDocks()
{
    Dock dock(*bus);
    QWidget window;
    {
        TaskbarProgress progress(window);
        progress.Hide(); // Nothing is shown.
        progress.Show(41);
        QTRY_COMPARE(dock.updates.size(), 1);
        QCOMPARE(dock.programs.first(), QStringLiteral("application://velkora-batch-desktop.desktop"));
        QCOMPARE(dock.updates[0].value(QStringLiteral("progress")).toDouble(), 0.41);
        QCOMPARE(dock.updates[0].value(QStringLiteral("progress-visible")), QVariant(true));
        progress.SetUrgent(true);
        QTRY_COMPARE(dock.updates.size(), 2);
        QCOMPARE(dock.updates[1].value(QStringLiteral("urgent")), QVariant(true));
    }
    QTRY_COMPARE(dock.updates.size(), 4);
    QCOMPARE(dock.updates[2].value(QStringLiteral("urgent")), QVariant(false));
    QCOMPARE(dock.updates[3].value(QStringLiteral("progress-visible")), QVariant(false));
}

void tst_DesktopServices::notificationsAreShownAndReplaced()
{
    NotificationService service(*bus);
    Notifier notifier;
    notifier.Show(End(QStringLiteral("3 written")));
    QTRY_COMPARE(service.shown.size(), 1);
    const NotificationService::Notification first = service.shown.first();
    QCOMPARE(first.application, QStringLiteral("Velkora Batch"));
    QCOMPARE(first.icon, QStringLiteral("velkora-batch-desktop"));
    QCOMPARE(first.summary, QStringLiteral("The end"));
    QCOMPARE(first.body, QStringLiteral("3 written"));
    QCOMPARE(first.replaces, 0U);
    QCOMPARE(first.actions, QStringList({QStringLiteral("default"), QString(), QStringLiteral("folder"),
                                         QStringLiteral("Open folder")}));
    QCOMPARE(first.hints.value(QStringLiteral("desktop-entry")), QVariant(QStringLiteral("velkora-batch-desktop")));
    notifier.Show(End(QStringLiteral("4 written")));
    QTRY_COMPARE(service.shown.size(), 2);
    QCOMPARE(service.shown.last().replaces, 1U);
}

void tst_DesktopServices::namesAreEscapedWhereMarkupIsRead()
{
    const QString text = QStringLiteral("<b>a & b</b>.jpg");
    NotificationService service(*bus);
    Notifier reader;
    reader.Show(End(text));
    QTRY_COMPARE(service.shown.size(), 1);
    QCOMPARE(service.shown.last().body, text.toHtmlEscaped());
    service.capabilities.clear();
    Notifier plain;
    plain.Show(End(text));
    QTRY_COMPARE(service.shown.size(), 2);
    QCOMPARE(service.shown.last().body, text);
    QVERIFY(service.shown.last().actions.isEmpty());
}

void tst_DesktopServices::chosenActionsAreTold()
{
    NotificationService service(*bus);
    Notifier notifier;
    QSignalSpy chosen(&notifier, &Notifier::Chosen);
    notifier.Show(End(QStringLiteral("3 written")));
    QTRY_COMPARE(service.shown.size(), 1);
    Q_EMIT service.ActionInvoked(77, QStringLiteral("folder")); // That of another program.
    Q_EMIT service.ActionInvoked(1, QStringLiteral("folder"));
    Q_EMIT service.ActionInvoked(1, QStringLiteral("default"));
    QTRY_COMPARE(chosen.size(), 2);
    QCOMPARE(chosen[0].first().toString(), QStringLiteral("folder"));
    QCOMPARE(chosen[1].first().toString(), QString());
}

void tst_DesktopServices::notificationsAreWithdrawn()
{
    NotificationService service(*bus);
    Notifier notifier;
    notifier.Withdraw(); // Nothing is shown.
    notifier.Show(End(QStringLiteral("3 written")));
    QTRY_COMPARE(service.shown.size(), 1);
    notifier.Withdraw();
    QTRY_COMPARE(service.closed, QList<uint>{1});
    notifier.Show(End(QStringLiteral("4 written")));
    QTRY_COMPARE(service.shown.size(), 2);
    QCOMPARE(service.shown.last().replaces, 0U);
}

void tst_DesktopServices::lastWishOfSeveralCounts()
{
    NotificationService service(*bus);
    Notifier notifier;
    notifier.Show(End(QStringLiteral("a question")));
    notifier.Withdraw();
    notifier.Show(End(QStringLiteral("another")));
    notifier.Withdraw();
    notifier.Show(End(QStringLiteral("the end")));
    QTRY_COMPARE(service.shown.size(), 1);
    QCOMPARE(service.shown.last().body, QStringLiteral("the end"));
    QVERIFY(service.closed.isEmpty());
}

void tst_DesktopServices::sleepIsBlockedAndReleased()
{
    LoginService login(*bus);
    PowerService power(*bus);
    {
        SleepBlocker sleep;
        sleep.Block(QStringLiteral("Pictures are being written"));
        sleep.Block(QStringLiteral("Pictures are being written"));
        QTRY_COMPARE(login.asked.size(), 1);
        QCOMPARE(login.asked.first(),
                 QStringList({QStringLiteral("sleep:idle"), QStringLiteral("Velkora Batch"),
                              QStringLiteral("Pictures are being written"), QStringLiteral("block")}));
        QVERIFY(login.IsBlocked());
        sleep.Release();
        QTRY_VERIFY(!login.IsBlocked());
        sleep.Block(QStringLiteral("Pictures are being written"));
        QTRY_COMPARE(login.asked.size(), 2);
        QVERIFY(login.IsBlocked());
    }
    QTRY_VERIFY(!login.IsBlocked());
    QCOMPARE(power.asked, 0);
}

void tst_DesktopServices::answersThatComeTooLateAreGivenBack()
{
    SleepBlocker sleep;
    {
        LoginService login(*bus);
        sleep.Block(QStringLiteral("reason"));
        sleep.Release();
        QTRY_COMPARE(login.asked.size(), 1);
        QTRY_VERIFY(!login.IsBlocked());
    }
    PowerService power(*bus);
    sleep.Block(QStringLiteral("reason"));
    sleep.Release();
    QTRY_COMPARE(power.asked, 1);
    QTRY_VERIFY(power.open.isEmpty());
}

void tst_DesktopServices::powerManagerStandsInForTheLoginManager()
{
    PowerService power(*bus);
    SleepBlocker sleep;
    sleep.Block(QStringLiteral("reason"));
    QTRY_COMPARE(power.open.size(), 1);
    sleep.Release();
    QTRY_VERIFY(power.open.isEmpty());
    QCOMPARE(power.asked, 1);
}

void tst_DesktopServices::absentServicesAreNoError()
{
    QWidget window;
    TaskbarProgress progress(window);
    progress.Show(10);
    Notifier notifier;
    QSignalSpy chosen(&notifier, &Notifier::Chosen);
    notifier.Show(End(QStringLiteral("3 written")));
    SleepBlocker sleep;
    sleep.Block(QStringLiteral("reason"));
    const ColourScheme scheme;
    QVERIFY(PassBy(QDBusConnection::sessionBus()));
    QVERIFY(PassBy(QDBusConnection::sessionBus())); // The second call of each is made after the error of the first.
    notifier.Withdraw();
    sleep.Release();
    QCOMPARE(scheme.Preferred(), ColourScheme::Preference::None);
    QVERIFY(chosen.isEmpty());

    // Services that come later are used.
    NotificationService service(*bus);
    notifier.Show(End(QStringLiteral("4 written")));
    QTRY_COMPARE(service.shown.size(), 1);
    LoginService login(*bus);
    QTRY_VERIFY((sleep.Block(QStringLiteral("reason")), login.asked.size() == 1));
}

void tst_DesktopServices::coloursFollowTheUser()
{
    constexpr uint dark = 1;
    constexpr uint light = 2;
    const QPalette usual = QApplication::palette();
    const QString style = QApplication::style()->objectName();
    PortalService portal(*bus, dark);
    ApplicationColours colours;
    QTRY_COMPARE(QApplication::palette().color(QPalette::Window), DarkPalette().color(QPalette::Window));
    QCOMPARE(QApplication::style()->objectName(), QStringLiteral("fusion"));
    QCOMPARE(portal.asked.first(),
             QStringList({QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")}));
    portal.Change(light);
    QTRY_COMPARE(QApplication::palette().color(QPalette::Window), usual.color(QPalette::Window));
    QCOMPARE(QApplication::palette().color(QPalette::Text), usual.color(QPalette::Text));
    QCOMPARE(QApplication::style()->objectName(), style);
    portal.Change(dark);
    QTRY_COMPARE(QApplication::palette().color(QPalette::Window), DarkPalette().color(QPalette::Window));
    portal.Change(0);
    QTRY_COMPARE(QApplication::palette().color(QPalette::Window), usual.color(QPalette::Window));
}

void tst_DesktopServices::darkDesktopsKeepTheirColours()
{
    QPalette own = DarkPalette();
    own.setColor(QPalette::Window, QColor(0x10, 0x20, 0x30));
    QApplication::setPalette(own);
    PortalService portal(*bus, 1);
    ApplicationColours colours;
    QTRY_COMPARE(portal.asked.size(), 1);
    QVERIFY(PassBy(QDBusConnection::sessionBus()));
    QCOMPARE(QApplication::palette().color(QPalette::Window), own.color(QPalette::Window));
    QApplication::setPalette(QPalette());
}

void tst_DesktopServices::textIsReadableInTheDark()
{
    constexpr double enough = 4.5; // WCAG 2.1, level AA
    const QPalette palette = DarkPalette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Base},
        {QPalette::LinkVisited, QPalette::Base},
        {QPalette::PlaceholderText, QPalette::Base},
    };
    for (const auto& [text, ground] : pairs) {
        const double contrast = Contrast(palette.color(text), palette.color(ground));
        QVERIFY2(contrast >= enough, qPrintable(QStringLiteral("role %1: %2").arg(int(text)).arg(contrast)));
    }
}

QTEST_MAIN(tst_DesktopServices)
#include "tst_desktopservices.moc"
