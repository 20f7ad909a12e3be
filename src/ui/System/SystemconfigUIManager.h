#pragma once

#include "Base/Noncopyable.h"

#include <QWidget>

#include <map>
#include <memory>
#include <string>

namespace video {

/// Owns the settings pages that were created, by page name. GUI thread.
class CSystemconfigUIManager : Base::CNoncopyable
{
public:
    static CSystemconfigUIManager& Instance();

    /// Takes a page; one that was there under the name goes.
    void AddPage(const std::string& name, std::unique_ptr<QWidget> page) { m_pages[name] = std::move(page); }

    /// nullptr when there is none of the name.
    QWidget* Page(const std::string& name) const;

    /// Releases all pages. May be called again.
    void UnInit() { m_pages.clear(); }

private:
    std::map<std::string, std::unique_ptr<QWidget>> m_pages;
};

} // namespace video
