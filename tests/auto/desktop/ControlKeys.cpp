// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ControlKeys.h"

#include "hosts/desktop/settings/parameters/CurveArea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QtTest>

namespace ControlKeys {

namespace {

template<typename Control>
bool Is(const QWidget& widget)
{
    return qobject_cast<const Control*>(&widget) != nullptr;
}

Qt::Key OneOf(const QVector<Qt::Key>& keys, QRandomGenerator& random)
{
    return keys.at(random.bounded(keys.size()));
}

} // namespace

bool IsControl(const QWidget& control)
{
    return Is<QSlider>(control) || Is<QComboBox>(control) || Is<QCheckBox>(control) || Is<QDoubleSpinBox>(control) ||
           Is<QLineEdit>(control) || Is<QPlainTextEdit>(control) || Is<BatchDesktop::CurveArea>(control);
}

void PressSome(QWidget& control, QRandomGenerator& random)
{
    if (Is<QSlider>(control)) {
        QTest::keyClick(&control,
                        OneOf({Qt::Key_Right, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End}, random));
    } else if (Is<QComboBox>(control)) {
        QTest::keyClick(&control, OneOf({Qt::Key_Down, Qt::Key_Up, Qt::Key_End}, random));
    } else if (Is<QCheckBox>(control)) {
        QTest::keyClick(&control, Qt::Key_Space);
    } else if (Is<QDoubleSpinBox>(control)) {
        QTest::keyClick(&control, OneOf({Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp}, random));
    } else if (Is<BatchDesktop::CurveArea>(control)) {
        QTest::keyClick(&control, OneOf({Qt::Key_Insert, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Delete}, random));
    } else {
        QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
        const QStringList texts{QStringLiteral("/"), QStringLiteral("red"), QStringLiteral("#00ff7f80"),
                                QStringLiteral("a b")};
        QTest::keyClicks(&control, texts.at(random.bounded(texts.size())));
        QTest::keyClick(&control, Qt::Key_Enter);
    }
}

} // namespace ControlKeys
