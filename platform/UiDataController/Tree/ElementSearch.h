#pragma once

#include "UiDataController/Tree/ElementNode.h"

#include <QStringMatcher>

namespace UiDataController {

/// Which elements of a forest a search leaves: those whose name holds the text, whatever they stand in, and
/// everything below them. One thread.
class CElementSearch
{
public:
    /// Blanks around the text do not count; without others nothing is searched.
    void SetText(const QString& text);
    bool IsOn() const { return !m_needle.isEmpty(); }
    /// The text, folded.
    const QString& Needle() const { return m_needle; }

    /// The rows that are shown below an element.
    const std::vector<ElementNode*>& Rows(const ElementNode* node) const
    {
        return IsOn() ? node->shown : node->children;
    }

    /// Chooses the rows anew everywhere below an element, the root. Gives the number of hits.
    int Run(ElementNode* root);

    /// Takes an element out of the shown rows of its parent.
    void Hide(ElementNode* node);

    /// Numbers the rows below an element from first on.
    void Number(ElementNode* node, int first = 0) const;

private:
    bool Show(ElementNode* node, bool isBelowHit);

    QString m_needle;
    QStringMatcher m_matcher;
    int m_hits = 0;
};

} // namespace UiDataController
