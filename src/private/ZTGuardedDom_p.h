#pragma once

class QDomDocument;
class QString;

/// Parses XML texts that anybody may have made into DOM documents.
namespace ZTGuardedDom {

/// How deep elements may stand in each other. The parser, the printer and the destructor of the DOM recurse; this depth
/// is safe in threads with stacks of 512 KiB.
constexpr int maximumDepth = 1000;

/// Parses `text` as QDomDocument::setContent() does without namespaces, but refuses what would make it overflow the
/// stack or take all memory: too deep elements, declarations of entities, nested content models. Returns false for
/// those and for what is not well-formed. References to entities that nobody declared leave nothing behind.
bool Parse(const QString& text, QDomDocument& document);

} // namespace ZTGuardedDom
