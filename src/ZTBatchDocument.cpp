// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchDocument.h"

#include "ZTBatchDocument_p.h"
#include "ZTBatchInputOutline_p.h"
#include "ZTBatchJobReader_p.h"
#include "ZTBatchJobWriter_p.h"
#include "ZTBatchXml_p.h"
#include "ZTDiagnostics_p.h"
#include "ZTGuardedDom_p.h"

#include <QTextBrowser>
#include <QTextDocument>

namespace {

constexpr ZTDiagnostics diagnostics("src\\ZTBatchDocument");

/// `line` in a form that a text browser shows literally. A line that looks like markup is escaped.
QString LiteralLine(const QString& line)
{
    if (!Qt::mightBeRichText(line)) {
        return line;
    }
    return QLatin1String("<span style=\"white-space:pre-wrap\">") + line.toHtmlEscaped() + QLatin1String("</span>");
}

/// Appends `header` and `paths` to `sink`, if there are any paths.
void AppendWarning(const QPointer<QTextBrowser>& sink, const QString& header, const QStringList& paths)
{
    if (sink == nullptr || paths.isEmpty()) {
        return;
    }
    sink->append(header);
    for (const QString& path : paths) {
        // A slot connected to the sink may delete it.
        if (sink == nullptr) {
            return;
        }
        sink->append(LiteralLine(QLatin1String("   ") + path));
    }
}

/// The job in `xml`; nothing, with a debug line, if `xml` is not the text of a job.
std::optional<ZTBatchJob> ReadJob(const QString& xml)
{
    ZTGuardedDom dom;
    if (!dom.Parse(xml)) {
        diagnostics.Log(QStringLiteral("Error to parse a document content."), 552);
        return std::nullopt;
    }
    if (dom.Document().doctype().name() != ZTBatchXml::documentType) {
        diagnostics.Log(QStringLiteral("Wrong document."), 558);
        return std::nullopt;
    }
    return ZTBatchJobReader::Read(dom.Document());
}

} // namespace

ZTBatchDocument::ZTBatchDocument(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    const char* const settingsSignals[] = {
        SIGNAL(FolderStructureChanged()), SIGNAL(FormatChanged()),          SIGNAL(PathChanged()),
        SIGNAL(NamingChanged()),          SIGNAL(PrefixSeparatorChanged()), SIGNAL(SuffixSeparatorChanged()),
        SIGNAL(RestrictionChanged()),     SIGNAL(TransformationChanged()),  SIGNAL(CropChanged()),
        SIGNAL(AdvancedSettingsChanged())};
    for (const char* const signal : settingsSignals) {
        connect(d->outputSettings, signal, this, SLOT(IncrementModificationState()));
    }
    connect(d->inputModel, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this,
            SLOT(OnInputDataChanged(QModelIndex, QModelIndex)));
    connect(d->inputModel, SIGNAL(rowsRemoved(QModelIndex, int, int)), this,
            SLOT(OnInputRowsRemoved(QModelIndex, int, int)));
    connect(d->inputModel, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(OnInputRowsInserted(QModelIndex, int, int)));
}

ZTBatchDocument::~ZTBatchDocument() = default;

QString ZTBatchDocument::GetDocumentName() const
{
    return d->documentName;
}

QString ZTBatchDocument::GetFileName() const
{
    return d->documentFileName;
}

QString ZTBatchDocument::GetGroupFilter() const
{
    return d->groupFilter;
}

ZTBatchInputModel* ZTBatchDocument::GetInputModel() const
{
    return d->inputModel;
}

ZTBatchOutputSettings* ZTBatchDocument::GetOutputSettings() const
{
    return d->outputSettings;
}

ZTStyle* ZTBatchDocument::GetStyle() const
{
    return d->style;
}

int ZTBatchDocument::ModificationState() const
{
    return d->modificationState;
}

QString ZTBatchDocument::Serialize(QObject* warningSink) const
{
    diagnostics.Assert(d->inputModel != nullptr, 360);
    const QPointer<const ZTBatchDocument> self(this);
    ZTBatchJobWriter writer(d->documentName);
    const ZTBatchInputOutline outline(*d->inputModel, warningSink == nullptr ? ZTBatchInputOutline::Everything
                                                                             : ZTBatchInputOutline::ExistingOnce);
    // Before any slot can run: the outline is valid only until the model changes.
    writer.WriteInput(outline);

    const QPointer<QTextBrowser> browser(qobject_cast<QTextBrowser*>(warningSink));
    AppendWarning(browser, tr("Warning! Some files are not found and skipped:"), outline.MissingFiles());
    AppendWarning(browser, tr("Warning! There are duplicate files:"), outline.DuplicateFiles());
    // A hook for later: the library does not know yet which formats can be read.
    const QStringList unsupportedFiles;
    AppendWarning(browser, tr("Warning! These files of unsupported format cannot be processed:"), unsupportedFiles);
    if (self == nullptr) {
        return QString();
    }

    diagnostics.Assert(d->style != nullptr, 420);
    writer.WriteStyle(*d->style);
    diagnostics.Assert(d->outputSettings != nullptr, 440);
    writer.WriteOutput(*d->outputSettings);
    return writer.TakeText();
}

bool ZTBatchDocument::Deserialize(const QString& xml)
{
    std::optional<ZTBatchJob> job = ReadJob(xml);
    if (!job) {
        return false;
    }

    // From here on each change emits, and a slot may delete the document.
    const QPointer<ZTBatchDocument> self(this);
    diagnostics.Assert(d->inputModel != nullptr);
    d->inputModel->removeRows(0, d->inputModel->rowCount());
    if (self != nullptr) {
        diagnostics.Assert(d->inputModel != nullptr);
        job->MoveInputTo(*d->inputModel);
    }
    if (self != nullptr) {
        diagnostics.Assert(d->style != nullptr);
        d->style->Clear();
        job->AppendEffectsTo(*d->style);
        diagnostics.Assert(d->outputSettings != nullptr);
        job->SetOutputOf(*d->outputSettings);
    }
    if (self != nullptr) {
        d->modificationState = 0;
        Q_EMIT ModificationStateChanged(0);
    }
    return true;
}

void ZTBatchDocument::SetDocumentName(const QString& name)
{
    if (d->documentName == name) {
        return;
    }
    d->documentName = name;
    Q_EMIT DocumentNameChanged(name);
}

void ZTBatchDocument::SetFileName(const QString& fileName)
{
    d->documentFileName = fileName;
}

void ZTBatchDocument::SetGroupFilter(const QString& filter)
{
    d->groupFilter = filter;
}

void ZTBatchDocument::SetStyle(const ZTStyle& style)
{
    if (&style == d->style) {
        return;
    }
    diagnostics.Assert(d->style != nullptr, 255);
    d->style->Clear();
    style.CopyEffects(*d->style);
}

void ZTBatchDocument::SetModificationState(int value)
{
    if (d->modificationState == value) {
        return;
    }
    d->modificationState = value;
    Q_EMIT ModificationStateChanged(value);
}

void ZTBatchDocument::IncrementModificationState()
{
    // Despite its name it stops at 1: hosts only need to know whether there is something to save.
    if (d->modificationState != 0) {
        return;
    }
    d->modificationState = 1;
    Q_EMIT ModificationStateChanged(1);
}

void ZTBatchDocument::OnInputDataChanged(const QModelIndex&, const QModelIndex&)
{
    IncrementModificationState();
}

void ZTBatchDocument::OnInputRowsRemoved(const QModelIndex&, int, int)
{
    IncrementModificationState();
}

void ZTBatchDocument::OnInputRowsInserted(const QModelIndex&, int, int)
{
    IncrementModificationState();
}
