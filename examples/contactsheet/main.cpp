// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Lays the pictures of a run side by side, before and after:
//
//     contact-sheet REPORT.json SHEET.jpg
//
// REPORT.json is what "velkora-batch run --report" has written.

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <cstdio>

namespace {

constexpr QSize cell(200, 134);
constexpr int gap = 6;
constexpr int border = 14; // around a pair
constexpr int columns = 3;
constexpr int quality = 82;

struct Pair
{
    QString before;
    QString after;
};

QVector<Pair> ReadPairs(const QString& path)
{
    QVector<Pair> pairs;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        for (const QJsonValue& entry : QJsonDocument::fromJson(file.readAll()).array()) {
            const QJsonObject object = entry.toObject();
            if (object.value(QStringLiteral("result")).toString() == QLatin1String("written")) {
                pairs.append({object.value(QStringLiteral("input")).toString(),
                              object.value(QStringLiteral("output")).toString()});
            }
        }
    }
    return pairs;
}

void DrawInto(QPainter& painter, const QRect& place, const QString& path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage picture = reader.read().scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QRect target(QPoint(), picture.size());
    target.moveCenter(place.center());
    painter.drawImage(target, picture);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: contact-sheet REPORT.json SHEET.jpg\n");
        return 2;
    }
    const QVector<Pair> pairs = ReadPairs(QFile::decodeName(argv[1]));
    if (pairs.isEmpty()) {
        std::fprintf(stderr, "contact-sheet: %s tells of no picture that was written.\n", argv[1]);
        return 1;
    }
    const QSize pair(2 * cell.width() + gap + 2 * border, cell.height() + 2 * border);
    const int rows = (pairs.size() + columns - 1) / columns;
    QImage sheet(columns * pair.width(), rows * pair.height(), QImage::Format_RGB32);
    sheet.fill(QColor(0x2B, 0x2D, 0x30));
    {
        QPainter painter(&sheet);
        for (int i = 0; i < pairs.size(); ++i) {
            const QPoint corner((i % columns) * pair.width() + border, (i / columns) * pair.height() + border);
            DrawInto(painter, QRect(corner, cell), pairs.at(i).before);
            DrawInto(painter, QRect(corner + QPoint(cell.width() + gap, 0), cell), pairs.at(i).after);
        }
    }
    if (!sheet.save(QFile::decodeName(argv[2]), "JPG", quality)) {
        std::fprintf(stderr, "contact-sheet: %s cannot be written.\n", argv[2]);
        return 1;
    }
    return 0;
}
