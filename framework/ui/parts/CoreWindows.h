#pragma once

#include "framework/ui/parts/ComponentWindows.h"

#include <QObject>

namespace framework {

class CFrameworkCore;

/// The component's windows as the core serves them; brings the answers to the GUI thread.
class CCoreWindows : public QObject, public IComponentWindows
{
public:
    explicit CCoreWindows(CFrameworkCore& core) : m_core(core) {}

    void Ask(const QString& name, Answer onAnswer) override;
    void Show(const QString& name) override;
    void Removed(const QString& name) override;
    void Start() override;
    ComponentState State() const override;

private:
    CFrameworkCore& m_core;
};

} // namespace framework
