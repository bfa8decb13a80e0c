// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/settings/parameters/Choosers.h"
#include "hosts/desktop/settings/parameters/CurveArea.h"
#include "hosts/desktop/settings/parameters/ParameterEditor.h"
#include "job/effects/EffectCatalog.h"

#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchJob;

/// The editor of a curve's points, by mouse and by keys, and its points.
class tst_CurveEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointsThatAreRefusedBecomeTheLine_data();
    void pointsThatAreRefusedBecomeTheLine();
    void randomPointsAreAllowed();
    void thereIsNoRoomForMoreThanTheSchemaTakes();
    void theMouseAddsMovesAndRemoves();
    void keysAddMoveAndRemove();
    void theCurrentPointIsSaid();
    void theEditorGivesWhatTheEffectTakes();
};

namespace {

QJsonArray Points(const char* json)
{
    return QJsonDocument::fromJson(json).array();
}

const ParameterSchema& PointsOfCurve()
{
    return FindEffect(QStringLiteral("curve"))->parameters.first();
}

void Drag(QWidget& widget, const QPoint& to)
{
    QMouseEvent event(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void ShowArea(CurveArea& area)
{
    area.resize(300, 300);
    area.show();
    area.setFocus();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
}

} // namespace

void tst_CurveEditor::pointsThatAreRefusedBecomeTheLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("none") << QByteArray("[]");
    QTest::newRow("one") << QByteArray("[[0, 0]]");
    QTest::newRow("not ascending") << QByteArray("[[50, 0], [20, 100]]");
    QTest::newRow("twice the same x") << QByteArray("[[50, 0], [50, 100]]");
    QTest::newRow("outside") << QByteArray("[[0, 0], [100, 101]]");
    QTest::newRow("no pair") << QByteArray("[[0, 0], [100]]");
}

void tst_CurveEditor::pointsThatAreRefusedBecomeTheLine()
{
    QFETCH(const QByteArray, json);
    CurvePoints points(0, 100);
    points.Set(QJsonDocument::fromJson(json).array());
    QCOMPARE(points.ToJson(), Points("[[0, 0], [100, 100]]"));
}

void tst_CurveEditor::randomPointsAreAllowed()
{
    QRandomGenerator random(20224);
    const auto coordinate = [&random] { return random.bounded(140.0) - 20.0; };
    for (int round = 0; round < 100; ++round) {
        CurvePoints points(0, 100);
        for (int i = 0; i < 200; ++i) {
            const int index = random.bounded(points.Count());
            switch (random.bounded(3)) {
            case 0:
                points.Add({coordinate(), coordinate()});
                break;
            case 1:
                points.Move(index, {coordinate(), coordinate()});
                break;
            default:
                points.Remove(index);
            }
            const CheckedParameters checked =
                CheckParameters({PointsOfCurve()}, {{QStringLiteral("points"), points.ToJson()}});
            QVERIFY2(checked.IsValid(), qPrintable(checked.error));
        }
    }
}

void tst_CurveEditor::thereIsNoRoomForMoreThanTheSchemaTakes()
{
    CurvePoints points(0, 100);
    for (int i = 1; i < 1000; ++i) {
        points.Add({i / 10.0, 50});
    }
    QCOMPARE(points.Count(), 256);
    QVERIFY(CheckParameters({PointsOfCurve()}, {{QStringLiteral("points"), points.ToJson()}}).IsValid());
}

void tst_CurveEditor::theMouseAddsMovesAndRemoves()
{
    CurveArea area(0, 100, nullptr);
    ShowArea(area);
    QSignalSpy changed(&area, &CurveArea::Changed);
    QSignalSpy released(&area, &CurveArea::Released);
    const auto place = [&area](double x, double y) { return area.PlaceOf({x, y}).toPoint(); };

    QTest::mousePress(&area, Qt::LeftButton, {}, place(25, 60));
    QCOMPARE(area.Points().Count(), 3);
    QCOMPARE(area.Current(), 1);
    Drag(area, place(30, 80));
    QTest::mouseRelease(&area, Qt::LeftButton, {}, place(30, 80));
    QVERIFY(qAbs(area.Points().At(1).x() - 30) < 1);
    QVERIFY(qAbs(area.Points().At(1).y() - 80) < 1);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(released.size(), 1);

    // It does not pass its neighbour.
    QTest::mousePress(&area, Qt::LeftButton, {}, place(30, 80));
    Drag(area, place(100, 20));
    QTest::mouseRelease(&area, Qt::LeftButton, {}, place(100, 20));
    QCOMPARE(area.Points().Count(), 3);
    QVERIFY(area.Points().At(1).x() < 100);

    const QPoint last = area.PlaceOf(area.Points().At(1)).toPoint();
    QTest::mouseDClick(&area, Qt::LeftButton, {}, last);
    QCOMPARE(area.Points().Count(), 2);
    QTest::mouseDClick(&area, Qt::LeftButton, {}, place(0, 0));
    QCOMPARE(area.Points().Count(), 2);
}

void tst_CurveEditor::keysAddMoveAndRemove()
{
    CurveArea area(0, 100, nullptr);
    ShowArea(area);
    QTest::keyClick(&area, Qt::Key_Insert);
    QCOMPARE(area.Points().ToJson(), Points("[[0, 0], [50, 50], [100, 100]]"));
    QTest::keyClick(&area, Qt::Key_Up);
    QTest::keyClick(&area, Qt::Key_Left);
    QCOMPARE(area.Points().ToJson(), Points("[[0, 0], [49, 51], [100, 100]]"));
    QTest::keyClick(&area, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(area.Points().ToJson(), Points("[[0, 0], [49, 41], [100, 100]]"));
    QTest::keyClick(&area, Qt::Key_PageUp);
    QTest::keyClick(&area, Qt::Key_Down);
    QCOMPARE(area.Points().ToJson(), Points("[[0, 0], [49, 41], [100, 99]]"));
    QTest::keyClick(&area, Qt::Key_Right);
    QCOMPARE(area.Points().At(2), QPointF(100, 99));
    QTest::keyClick(&area, Qt::Key_PageDown);
    QTest::keyClick(&area, Qt::Key_Delete);
    QCOMPARE(area.Points().ToJson(), Points("[[0, 0], [100, 99]]"));
    QTest::keyClick(&area, Qt::Key_Delete);
    QCOMPARE(area.Points().Count(), 2);
}

void tst_CurveEditor::theCurrentPointIsSaid()
{
    CurveArea area(0, 100, nullptr);
    ShowArea(area);
    area.SetPoints(Points("[[0, 0], [25, 15], [100, 100]]"));
    QTest::keyClick(&area, Qt::Key_PageUp);
    QCOMPARE(area.accessibleDescription(), QStringLiteral("Point 2 of 3: 25 becomes 15"));
}

void tst_CurveEditor::theEditorGivesWhatTheEffectTakes()
{
    const Choosers choosers;
    const QScopedPointer<ParameterEditor> editor(
        MakeParameterEditor(RowOf(PointsOfCurve(), QStringLiteral("curve")), choosers, nullptr));
    auto* const area = editor->findChild<CurveArea*>();
    QVERIFY(area);
    editor->show();
    QSignalSpy edited(editor.data(), &ParameterEditor::Edited);
    editor->SetValue(Points("[[0, 10], [100, 90]]"));
    QCOMPARE(edited.size(), 0);
    QTest::keyClick(area, Qt::Key_Insert);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.at(0).at(0).toJsonValue().toArray(), Points("[[0, 10], [50, 50], [100, 90]]"));
}

QTEST_MAIN(tst_CurveEditor)
#include "tst_curveeditor.moc"
