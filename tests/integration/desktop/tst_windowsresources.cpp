// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProgramFiles.h"

#include <QtTest>

#include <qt_windows.h>

/// What Windows shows of the programs and the library: their properties, their icon, and what they ask of the system.
class tst_WindowsResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties_data();
    void properties();
    void manifests_data();
    void manifests();
    void iconOfTheWindow();
    void consoles_data();
    void consoles();
};

namespace {

std::wstring Native(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

/// One of the texts that Windows shows as the properties of a file.
QString Property(const QString& path, const char* name)
{
    const std::wstring file = Native(path);
    DWORD unused = 0;
    QByteArray all(int(GetFileVersionInfoSizeW(file.c_str(), &unused)), '\0');
    if (!GetFileVersionInfoW(file.c_str(), 0, DWORD(all.size()), all.data())) {
        return {};
    }
    const QString key = QStringLiteral("\\StringFileInfo\\040904b0\\") + QString::fromLatin1(name);
    void* value = nullptr;
    UINT length = 0;
    const bool isThere = VerQueryValueW(all.constData(), key.toStdWString().c_str(), &value, &length) != FALSE;
    return isThere ? QString::fromWCharArray(static_cast<const wchar_t*>(value)) : QString();
}

/// A resource of a program that is not run.
QByteArray Resource(const QString& path, const wchar_t* type, WORD number)
{
    const HMODULE module = LoadLibraryExW(Native(path).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(number), type);
    const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    const QByteArray content =
        loaded ? QByteArray(static_cast<const char*>(LockResource(loaded)), int(SizeofResource(module, found)))
               : QByteArray();
    FreeLibrary(module);
    return content;
}

void AddPrograms()
{
    QTest::addColumn<QString>("file");
    for (const char* program :
         {"velkora-batch", "velkora-batch-desktop", "VelkoraBatchProcessing", "VelkoraBatchWorker"}) {
        QTest::newRow(program) << BuiltProgram(QString::fromLatin1(program));
    }
}

} // namespace

void tst_WindowsResources::properties_data()
{
    AddPrograms();
    for (const char* library : {"batchcore.dll", "velkoracore.dll", "velkorastylecore.dll", "velkorautils.dll"}) {
        QTest::newRow(library) << QDir(QCoreApplication::applicationDirPath()).filePath(QString::fromLatin1(library));
    }
}

void tst_WindowsResources::properties()
{
    QFETCH(QString, file);
    QCOMPARE(Property(file, "ProductName"), QStringLiteral("Velkora Batch"));
    QCOMPARE(Property(file, "FileVersion"), QStringLiteral(PRODUCT_VERSION));
    QCOMPARE(Property(file, "ProductVersion"), QStringLiteral(PRODUCT_VERSION));
    QCOMPARE(Property(file, "OriginalFilename"), QFileInfo(file).fileName());
    QVERIFY(!Property(file, "FileDescription").isEmpty());
}

void tst_WindowsResources::manifests_data()
{
    AddPrograms();
}

void tst_WindowsResources::manifests()
{
    QFETCH(QString, file);
    const QByteArray manifest = Resource(file, MAKEINTRESOURCEW(24), 1);
    QVERIFY(manifest.contains("level=\"asInvoker\""));
    QVERIFY(manifest.contains("Microsoft.Windows.Common-Controls"));
}

void tst_WindowsResources::iconOfTheWindow()
{
    const QString program = BuiltProgram(QStringLiteral("velkora-batch-desktop"));
    const QByteArray icons = Resource(program, MAKEINTRESOURCEW(14), 1); // a group of one icon in several sizes
    QVERIFY(icons.size() > 4);
    QCOMPARE(int(icons.at(4)), 6); // Their number is the third of its 16 bit values.
}

void tst_WindowsResources::consoles_data()
{
    AddPrograms();
}

// The window opens no console; the others write to one.
void tst_WindowsResources::consoles()
{
    QFETCH(QString, file);
    QFile program(file);
    QVERIFY(program.open(QIODevice::ReadOnly));
    const QByteArray head = program.read(4096);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(head.constData());
    QVERIFY(dos->e_lfanew + int(sizeof(IMAGE_NT_HEADERS64)) <= head.size());
    const auto* const header = reinterpret_cast<const IMAGE_NT_HEADERS64*>(head.constData() + dos->e_lfanew);
    const bool isWindow = file.contains(QStringLiteral("desktop"));
    QCOMPARE(int(header->OptionalHeader.Subsystem), isWindow ? IMAGE_SUBSYSTEM_WINDOWS_GUI : IMAGE_SUBSYSTEM_WINDOWS_CUI);
}

QTEST_GUILESS_MAIN(tst_WindowsResources)

#include "tst_windowsresources.moc"
