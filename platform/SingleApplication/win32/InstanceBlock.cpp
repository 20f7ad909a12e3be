#include "SingleApplication/InstanceBlock.h"

#include <windows.h>

// The system removes a block with its last handle, so its name never leads elsewhere while it is open.

bool CInstanceBlock::Open(const std::string& name)
{
    Close();
    m_name = "Local\\" + name;
    const HANDLE mapping = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                              sizeof(InstanceWords), m_name.c_str());
    if (!mapping)
        return false;
    m_handle = reinterpret_cast<std::intptr_t>(mapping);
    void* memory = MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(InstanceWords));
    if (!memory) {
        Close();
        return false;
    }
    m_words = static_cast<InstanceWords*>(memory);
    return true;
}

bool CInstanceBlock::IsNamed() const
{
    return m_words != nullptr;
}

void CInstanceBlock::RemoveName() {}

void CInstanceBlock::Close()
{
    if (m_words)
        UnmapViewOfFile(m_words);
    m_words = nullptr;
    if (m_handle != -1)
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    m_handle = -1;
}
