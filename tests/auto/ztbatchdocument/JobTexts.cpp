// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"

#include "ZTBatchDocument.h"

#include <QDomDocument>
#include <QThread>

#include <memory>

namespace {

QString Visible(const QString& text)
{
    QString visible;
    for (const QChar character : text) {
        if (character.unicode() < 0x20 || character == QLatin1Char('\\')) {
            visible += QStringLiteral("\\%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        } else {
            visible += character;
        }
    }
    return visible;
}

QStringList Attributes(const QDomElement& element)
{
    QStringList lines;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        lines.append(attribute.name() + QLatin1String("=\"") + Visible(attribute.value()) + QLatin1Char('"'));
    }
    lines.sort();
    return lines;
}

void AppendElements(const QDomElement& first, int level, QStringList& lines)
{
    for (QDomElement element = first; !element.isNull(); element = element.nextSiblingElement()) {
        lines.append(QString(level, QLatin1Char(' ')) +
                     (QStringList{element.tagName()} + Attributes(element)).join(QLatin1Char(' ')));
        AppendElements(element.firstChildElement(), level + 1, lines);
    }
}

} // namespace

TreeNode<BatchNodeData>* NewInputNode(int type, const QString& path)
{
    auto* const node = new TreeNode<BatchNodeData>;
    node->data.type = type;
    node->data.inputText = path;
    node->data.fileName = path;
    node->data.enabled = true;
    node->data.fileNodesCount = type == Folder ? 0 : 1;
    return node;
}

QModelIndex AddInput(ZTBatchDocument& document, int type, const QString& path, const QModelIndex& parent)
{
    return document.GetInputModel()->InsertBranch(NewInputNode(type, path), parent);
}

QStringList ElementLines(const QString& xml)
{
    QDomDocument document;
    QString error;
    if (!document.setContent(xml, false, &error)) {
        return {QLatin1String("not well-formed: ") + error};
    }
    QStringList lines;
    AppendElements(document.documentElement(), 0, lines);
    return lines;
}

QStringList AttributesOf(const QString& xml, const QString& element)
{
    QDomDocument document;
    document.setContent(xml, false);
    return Attributes(document.elementsByTagName(element).at(0).toElement());
}

QString AttributeOf(const QString& xml, const QString& element, const QString& attribute)
{
    QDomDocument document;
    document.setContent(xml, false);
    const QDomElement found = document.elementsByTagName(element).at(0).toElement();
    return found.hasAttribute(attribute) ? found.attribute(attribute) : QString();
}

QStringList InputLines(const ZTBatchInputModel& model, const QModelIndex& parent, int level)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const BatchNodeData* const data = model.getNodeData(index);
        lines.append(QString(level, QLatin1Char(' ')) +
                     QStringList{QString::number(data->type), data->inputText, data->fileName}.join(QLatin1Char(' ')));
        lines.append(InputLines(model, index, level + 1));
    }
    return lines;
}

QStringList StateOf(const ZTBatchDocument& document)
{
    return ElementLines(document.Serialize(nullptr)) + QStringList{document.GetDocumentName(), document.GetFileName(),
                                                                   document.GetGroupFilter(),
                                                                   QString::number(document.ModificationState())};
}

void RunOnStack(uint bytes, const std::function<void()>& function)
{
    const std::unique_ptr<QThread> thread(QThread::create(function));
    thread->setStackSize(bytes);
    thread->start();
    thread->wait();
}
