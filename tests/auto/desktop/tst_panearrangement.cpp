// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/window/PaneArrangement.h"
#include "hosts/desktop/window/PaneFocus.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

using namespace BatchDesktop;

/// Three panes in windows of any width, and the keyboard's way through them.
class tst_PaneArrangement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void wideWindowsShowThreePanes();
    void narrowWindowsHaveThePreviewAsATab();
    void narrowWindowsCanBeMade();
    void widthsComeBack();
    void foreignWidthsAreIgnored();
    void keysGoThroughThePanes();
    void keysOpenTheTab();

private:
    struct Pane : public QWidget
    {
        Pane()
        {
            auto* const layout = new QVBoxLayout(this);
            layout->addWidget(&first);
            layout->addWidget(&second);
        }

        QLineEdit first;
        QLineEdit second;
    };

    struct Stage
    {
        Stage()
        {
            arrangement.resize(1400, 700);
            arrangement.show();
        }

        Pane* const pictures = new Pane;
        Pane* const preview = new Pane;
        Pane* const settings = new Pane;
        PaneArrangement arrangement{pictures, preview, settings};
    };

    std::unique_ptr<Stage> stage;
};

void tst_PaneArrangement::init()
{
    stage = std::make_unique<Stage>();
    QVERIFY(QTest::qWaitForWindowActive(&stage->arrangement));
}

void tst_PaneArrangement::wideWindowsShowThreePanes()
{
    QVERIFY(!stage->arrangement.IsNarrow());
    QVERIFY(stage->pictures->isVisible());
    QVERIFY(stage->preview->isVisible());
    QVERIFY(stage->settings->isVisible());
}

void tst_PaneArrangement::narrowWindowsHaveThePreviewAsATab()
{
    stage->arrangement.resize(1099, 700);
    QVERIFY(stage->arrangement.IsNarrow());
    QVERIFY(stage->pictures->isVisible());
    QVERIFY(!stage->preview->isVisible());
    QVERIFY(stage->settings->isVisible());
    auto* const tabs = stage->arrangement.findChild<QTabWidget*>();
    QCOMPARE(tabs->count(), 2);
    tabs->setCurrentIndex(1);
    QVERIFY(stage->preview->isVisible());
    stage->arrangement.resize(1100, 700);
    QVERIFY(!stage->arrangement.IsNarrow());
    QVERIFY(stage->pictures->isVisible());
    QVERIFY(stage->preview->isVisible());
    QCOMPARE(stage->arrangement.indexOf(stage->preview), 1);
}

void tst_PaneArrangement::narrowWindowsCanBeMade()
{
    stage->pictures->setMinimumWidth(400);
    stage->preview->setMinimumWidth(600);
    stage->settings->setMinimumWidth(300);
    QVERIFY(stage->arrangement.minimumSizeHint().width() < 1000);
}

void tst_PaneArrangement::widthsComeBack()
{
    stage->arrangement.setSizes({500, 500, 388});
    const QList<int> wanted = stage->arrangement.sizes();
    const QByteArray saved = stage->arrangement.Widths();
    stage->arrangement.resize(1000, 700);
    QCOMPARE(stage->arrangement.Widths(), saved);
    stage->arrangement.resize(1400, 700);
    QCOMPARE(stage->arrangement.sizes(), wanted);
}

void tst_PaneArrangement::foreignWidthsAreIgnored()
{
    stage->arrangement.SetWidths("no widths");
    const QList<int> sizes = stage->arrangement.sizes();
    QCOMPARE(sizes.size(), 3);
    QVERIFY(*std::min_element(sizes.begin(), sizes.end()) > 0);
}

void tst_PaneArrangement::keysGoThroughThePanes()
{
    PaneFocus focus(stage->arrangement, {stage->pictures, stage->preview, stage->settings}, nullptr);
    stage->pictures->second.setFocus();
    focus.Move(1);
    QVERIFY(stage->preview->first.hasFocus());
    focus.Move(1);
    QVERIFY(stage->settings->first.hasFocus());
    focus.Move(1);
    QVERIFY(stage->pictures->second.hasFocus()); // where it was
    focus.Move(-1);
    QVERIFY(stage->settings->first.hasFocus());
    stage->preview->setEnabled(false);
    focus.Move(-1);
    QVERIFY(stage->pictures->second.hasFocus());
}

void tst_PaneArrangement::keysOpenTheTab()
{
    PaneFocus focus(stage->arrangement, {stage->pictures, stage->preview, stage->settings}, nullptr);
    stage->arrangement.resize(1000, 700);
    stage->pictures->first.setFocus();
    focus.Move(1);
    QVERIFY(stage->preview->isVisible());
    QVERIFY(stage->preview->first.hasFocus());
}

QTEST_MAIN(tst_PaneArrangement)

#include "tst_panearrangement.moc"
