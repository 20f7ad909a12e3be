#include "UiDataController/Tree/ElementSearch.h"

#include "UiDataController/Tree/FoldedText.h"

namespace UiDataController {

void CElementSearch::SetText(const QString& text)
{
    m_needle = foldedText(text.trimmed());
    m_matcher.setPattern(m_needle);
}

void CElementSearch::Number(ElementNode* node, int first) const
{
    const std::vector<ElementNode*>& rows = Rows(node);
    for (std::size_t row = std::size_t(first); row < rows.size(); ++row)
        rows[row]->row = int(row);
}

int CElementSearch::Run(ElementNode* root)
{
    m_hits = 0;
    Show(root, false);
    return m_hits;
}

// True when the element stays, by itself or by what is below it.
bool CElementSearch::Show(ElementNode* node, bool isBelowHit)
{
    if (IsOn() && node->folded.isNull())
        node->folded = foldedText(node->info.name);
    node->isHit = IsOn() && m_matcher.indexIn(node->folded) >= 0;
    m_hits += node->isHit ? 1 : 0;
    node->leadsToHit = false;
    node->shown.clear();
    const bool staysWithAll = isBelowHit || node->isHit;
    for (ElementNode* child : node->children) {
        child->row = -1;
        if (Show(child, staysWithAll) && IsOn())
            node->shown.push_back(child);
        node->leadsToHit = node->leadsToHit || child->isHit || child->leadsToHit;
    }
    Number(node);
    if (node->leadsToHit)
        node->isFetched = true;
    return staysWithAll || node->leadsToHit;
}

void CElementSearch::Hide(ElementNode* node)
{
    auto& shown = node->parent->shown;
    const int row = node->row;
    if (row < 0 || row >= int(shown.size()) || shown[std::size_t(row)] != node)
        return;
    shown.erase(shown.begin() + row);
    node->row = -1;
    Number(node->parent, row);
}

} // namespace UiDataController
