// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"
#include "PrivateTempDir.h"
#include "SystemWords.h"

#include "hosts/common/ByteText.h"
#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/preview/PreviewDivider.h"
#include "hosts/desktop/preview/PreviewPane.h"
#include "hosts/desktop/preview/PreviewTexts.h"
#include "hosts/desktop/preview/PreviewView.h"

#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

using namespace BatchDesktop;
using BatchHost::ByteText;

/// What is seen of a preview, and how mouse and keys change it.
class tst_PreviewPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytes_data();
    void bytes();
    void exactZoomShowsEachPixelOnce();
    void doubleZoomShowsSquares();
    void fitShowsAllOfThePicture();
    void smallPicturesAreNotEnlarged();
    void lineParts();
    void lineFollowsKeysAndMouse();
    void spaceShowsBefore();
    void sidesShowTheSamePart();
    void dragMovesWithinThePicture();
    void wheelMovesAndZooms();
    void beforeOfAnotherSizeIsCentred();
    void updatingDims();
    void largeResultsAreNotShown();
    void paneFollowsTheSettings();
    void namesNeedNoNewPreview();
    void hiddenPaneMakesNothing();
    void failuresAreSaid();
    void everythingHasAName();
};

namespace {

constexpr int patience = 60'000; // ms
const QColor beforeColour(20, 60, 200);

/// After: every pixel says where it is. Before: one colour.
PreviewPictures Pictures(const QSize& size)
{
    PreviewPictures pictures;
    pictures.size = size;
    pictures.after = QImage(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            pictures.after.setPixel(x, y, qRgb(x % 256, y % 256, (x / 256) * 16 + y / 256));
        }
    }
    pictures.before = QImage(size, QImage::Format_RGB32);
    pictures.before.fill(beforeColour);
    return pictures;
}

/// A view of 400 x 300 pixels.
struct ShownView : PreviewView
{
    explicit ShownView(const PreviewPictures& pictures)
    {
        resize(400, 300);
        SetPictures(pictures);
        show();
    }

    /// Without the line.
    QImage Picture()
    {
        Divider()->SetLineShown(false);
        const QImage picture = grab().toImage().convertToFormat(QImage::Format_RGB32);
        Divider()->SetLineShown(true);
        return picture;
    }
};

void Wheel(QWidget& widget, const QPoint& turn, Qt::KeyboardModifiers modifiers)
{
    const QPointF place = QRectF(widget.rect()).center();
    QWheelEvent event(place, widget.mapToGlobal(place.toPoint()), QPoint(), turn, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void Drag(QWidget& widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}

Settings ToJpeg(const EditedJob& job)
{
    Settings settings = job.CurrentSettings();
    settings.format = QStringLiteral("JPEG");
    return settings;
}

} // namespace

void tst_PreviewPane::bytes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << qint64(0) << QStringLiteral("0 bytes");
    QTest::newRow("one") << qint64(1) << QStringLiteral("1 byte");
    QTest::newRow("below a thousand") << qint64(999) << QStringLiteral("999 bytes");
    QTest::newRow("a thousand") << qint64(1000) << QStringLiteral("1.0 kB");
    QTest::newRow("rounded to two digits") << qint64(9960) << QStringLiteral("10 kB");
    QTest::newRow("some") << qint64(312'405) << QStringLiteral("312 kB");
    QTest::newRow("rounded to the next unit") << qint64(999'600) << QStringLiteral("1.0 MB");
    QTest::newRow("many") << qint64(24'000'000) << QStringLiteral("24 MB");
    QTest::newRow("very many") << qint64(7'100'000'000'000'000) << QStringLiteral("7100 TB");
}

void tst_PreviewPane::bytes()
{
    QFETCH(qint64, bytes);
    QTEST(ByteText(bytes), "text");
}

void tst_PreviewPane::exactZoomShowsEachPixelOnce()
{
    const PreviewPictures pictures = Pictures({1000, 800});
    ShownView view(pictures);
    view.SetZoom(ViewZoom::Exact);
    view.Divider()->setValue(0);
    const QImage seen = view.Picture();
    const QRect middle(100, 100, 200, 100);
    QCOMPARE(seen.copy(middle), pictures.after.copy(middle.translated(300, 250)));
}

void tst_PreviewPane::doubleZoomShowsSquares()
{
    const PreviewPictures pictures = Pictures({1000, 800});
    ShownView view(pictures);
    view.SetZoom(ViewZoom::Double);
    view.Divider()->setValue(0);
    const QImage seen = view.Picture();
    const QRect part(450, 375, 100, 50);
    QCOMPARE(seen.copy(100, 100, 200, 100), pictures.after.copy(part).scaled(200, 100));
}

void tst_PreviewPane::fitShowsAllOfThePicture()
{
    PreviewPictures pictures = Pictures({1000, 500});
    pictures.after.fill(Qt::red);
    ShownView view(pictures);
    view.Divider()->setValue(0);
    const QImage seen = view.Picture();
    QCOMPARE(seen.pixelColor(2, 150), QColor(Qt::red));
    QCOMPARE(seen.pixelColor(397, 150), QColor(Qt::red));
    QVERIFY(seen.pixelColor(200, 45) != QColor(Qt::red));
    QCOMPARE(seen.pixelColor(200, 55), QColor(Qt::red));
    QCOMPARE(seen.pixelColor(200, 245), QColor(Qt::red));
    QVERIFY(seen.pixelColor(200, 255) != QColor(Qt::red));
}

void tst_PreviewPane::smallPicturesAreNotEnlarged()
{
    const PreviewPictures pictures = Pictures({100, 60});
    ShownView view(pictures);
    view.Divider()->setValue(0);
    QCOMPARE(view.Picture().copy(150, 120, 100, 60), pictures.after);
}

void tst_PreviewPane::lineParts()
{
    const PreviewPictures pictures = Pictures({1000, 800});
    ShownView view(pictures);
    view.SetZoom(ViewZoom::Exact);
    view.Divider()->setValue(500);
    const QImage seen = view.Picture();
    QCOMPARE(seen.pixelColor(198, 150), beforeColour);
    QCOMPARE(seen.pixel(202, 150), pictures.after.pixel(502, 400));
}

void tst_PreviewPane::lineFollowsKeysAndMouse()
{
    ShownView view(Pictures({1000, 800}));
    PreviewDivider& line = *view.Divider();
    line.setValue(500);
    QTest::keyClick(&line, Qt::Key_Right);
    QCOMPARE(line.value(), 510);
    QTest::keyClick(&line, Qt::Key_Home);
    QCOMPARE(line.value(), 0);
    line.setValue(500);
    Drag(line, {200, 100}, {300, 100});
    QCOMPARE(line.value(), 750);
}

void tst_PreviewPane::spaceShowsBefore()
{
    ShownView view(Pictures({1000, 800}));
    for (QWidget* const widget : {static_cast<QWidget*>(&view), static_cast<QWidget*>(view.Divider())}) {
        QTest::keyPress(widget, Qt::Key_Space);
        QVERIFY(view.IsBeforeOnly());
        QCOMPARE(view.Picture().pixelColor(350, 150), beforeColour);
        QTest::keyRelease(widget, Qt::Key_Space);
        QVERIFY(!view.IsBeforeOnly());
        QVERIFY(view.Picture().pixelColor(350, 150) != beforeColour);
    }
}

void tst_PreviewPane::sidesShowTheSamePart()
{
    PreviewPictures pictures = Pictures({1000, 800});
    pictures.before = pictures.after;
    ShownView view(pictures);
    view.SetZoom(ViewZoom::Exact);
    view.SetSideBySide(true);
    QVERIFY(!view.Divider()->isVisible());
    const QImage seen = view.Picture();
    QCOMPARE(seen.copy(0, 100, 190, 100), seen.copy(201, 100, 190, 100));
    QVERIFY(seen.pixel(20, 150) != seen.pixel(21, 150));
}

void tst_PreviewPane::dragMovesWithinThePicture()
{
    const PreviewPictures pictures = Pictures({1000, 800});
    ShownView view(pictures);
    view.SetZoom(ViewZoom::Exact);
    view.Divider()->setValue(0);
    Drag(*view.Divider(), {100, 150}, {90, 130}); // beside the line
    QCOMPARE(view.Picture().pixel(200, 150), pictures.after.pixel(510, 420));
    for (int i = 0; i < 20; ++i) {
        Drag(view, {390, 290}, {0, 0});
    }
    QCOMPARE(view.Picture().pixel(399, 299), pictures.after.pixel(999, 799));
}

void tst_PreviewPane::wheelMovesAndZooms()
{
    const PreviewPictures pictures = Pictures({1000, 800});
    ShownView view(pictures);
    QSignalSpy zoomed(&view, &PreviewView::ZoomChanged);
    Wheel(*view.Divider(), {0, 120}, Qt::ControlModifier);
    QCOMPARE(int(view.Zoom()), int(ViewZoom::Exact));
    QCOMPARE(zoomed.count(), 1);
    view.Divider()->setValue(0);
    Wheel(*view.Divider(), {0, -120}, {});
    QCOMPARE(view.Picture().pixel(200, 150), pictures.after.pixel(500, 460));
}

void tst_PreviewPane::beforeOfAnotherSizeIsCentred()
{
    PreviewPictures pictures = Pictures({200, 200});
    pictures.before = QImage(100, 100, QImage::Format_RGB32);
    pictures.before.fill(beforeColour);
    ShownView view(pictures);
    view.SetBeforeOnly(true);
    const QImage seen = view.Picture();
    QCOMPARE(seen.pixelColor(151, 101), beforeColour);
    QCOMPARE(seen.pixelColor(249, 199), beforeColour);
    QVERIFY(seen.pixelColor(149, 150) != beforeColour);
    QVERIFY(seen.pixelColor(251, 150) != beforeColour);
}

void tst_PreviewPane::updatingDims()
{
    ShownView view(Pictures({1000, 800}));
    const QImage plain = view.Picture();
    view.SetUpdating(true);
    QVERIFY(view.Picture() != plain);
    view.SetUpdating(false);
    QCOMPARE(view.Picture(), plain);
}

void tst_PreviewPane::largeResultsAreNotShown()
{
    PreviewPictures pictures;
    pictures.size = {10'000, 10'000};
    ShownView view(pictures);
    const QImage withText = view.Picture();
    view.SetMessage(QString());
    QVERIFY(view.Picture() != withText);
}

void tst_PreviewPane::paneFollowsTheSettings()
{
    const PrivateTempDir folder;
    const QString photo = folder.FilePath(QStringLiteral("photo.jpg"));
    PictureFiles::WriteJpeg(photo, 1, 300, 200);
    EditedJob job;
    job.Change(ToJpeg(job), QString());
    PreviewPane pane(job);
    QSignalSpy made(&pane.Maker(), &PreviewMaker::Made);
    pane.show();
    pane.SetFile(photo);
    auto* const facts = pane.findChild<QLabel*>(QStringLiteral("previewFacts"));
    auto* const more = pane.findChild<QLabel*>(QStringLiteral("previewMore"));
    QCOMPARE(more->text(), QStringLiteral("Updating"));
    QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, patience);
    QVERIFY(facts->text().contains(QStringLiteral("300 \u00d7 200 px, ")));
    QVERIFY(facts->isEnabled());

    Settings smaller = job.CurrentSettings();
    smaller.imageSize.restriction = 1;
    smaller.imageSize.size = 150;
    job.Change(smaller, QStringLiteral("Size"));
    QVERIFY(!facts->isEnabled());
    QTRY_COMPARE_WITH_TIMEOUT(made.count(), 2, patience);
    const auto pictures = made.last().first().value<PreviewPictures>();
    QCOMPARE(facts->text(), QStringLiteral("300 \u00d7 200 px, %1 \u2192 150 \u00d7 100 px, %2")
                                .arg(ByteText(QFileInfo(photo).size()), ByteText(pictures.bytes)));
    QVERIFY(more->text().contains(QString::number(QFileInfo(pictures.result).size())));

    job.History().undo();
    QTRY_COMPARE_WITH_TIMEOUT(made.count(), 3, patience);
    QCOMPARE(made.last().first().value<PreviewPictures>().size, QSize(300, 200));
}

void tst_PreviewPane::namesNeedNoNewPreview()
{
    const PrivateTempDir folder;
    const QString photo = folder.FilePath(QStringLiteral("photo.jpg"));
    PictureFiles::WriteJpeg(photo);
    EditedJob job;
    PreviewPane pane(job);
    QSignalSpy updating(&pane.Maker(), &PreviewMaker::Updating);
    QSignalSpy made(&pane.Maker(), &PreviewMaker::Made);
    pane.show();
    pane.SetFile(photo);
    QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, patience);
    Settings renamed = job.CurrentSettings();
    renamed.outputFolder = folder.FilePath(QStringLiteral("out"));
    renamed.nameParts[0].text = QStringLiteral("another");
    job.Change(renamed, QStringLiteral("Names"));
    QCOMPARE(updating.count(), 1);
    pane.Renew();
    QCOMPARE(updating.count(), 2);
}

void tst_PreviewPane::hiddenPaneMakesNothing()
{
    const PrivateTempDir folder;
    const QString photo = folder.FilePath(QStringLiteral("photo.jpg"));
    PictureFiles::WriteJpeg(photo);
    EditedJob job;
    PreviewPane pane(job);
    QSignalSpy made(&pane.Maker(), &PreviewMaker::Made);
    pane.SetFile(photo);
    QVERIFY(!pane.Maker().IsUpdating());
    pane.show();
    QVERIFY(pane.Maker().IsUpdating());
    pane.hide();
    QVERIFY(!pane.Maker().IsUpdating());
    pane.show();
    QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, patience);
}

void tst_PreviewPane::failuresAreSaid()
{
    const PrivateTempDir folder;
    EditedJob job;
    job.Change(ToJpeg(job), QString());
    PreviewPane pane(job);
    pane.show();
    const QString missing = folder.FilePath(QStringLiteral("missing.jpg"));
    pane.SetFile(missing);
    auto* const more = pane.findChild<QLabel*>(QStringLiteral("previewMore"));
    QTRY_VERIFY_WITH_TIMEOUT(more->text().contains(WordsForMissing(missing)), patience);
    pane.SetFile(QString());
    QCOMPARE(more->text(), QString());
}

void tst_PreviewPane::everythingHasAName()
{
    EditedJob job;
    PreviewPane pane(job);
    pane.View().SetPictures(Pictures({100, 100}));
    pane.show();
    int focusable = 0;
    const QList<QWidget*> widgets = pane.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if ((widget->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        ++focusable;
        QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
        const QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(accessible);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qUtf8Printable(widget->objectName()));
    }
    QCOMPARE(focusable, 8);
}

QTEST_MAIN(tst_PreviewPane)

#include "tst_previewpane.moc"
