#include "SingleApplication/InstanceBlock.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Refuses a block that another user put in the way, and gives a new one its size. Existing content stays.
bool Prepare(int file)
{
    struct stat info = {};
    if (fstat(file, &info) != 0 || info.st_uid != geteuid())
        return false;
    const auto size = static_cast<off_t>(sizeof(InstanceWords));
    return info.st_size >= size || ftruncate(file, size) == 0;
}

} // namespace

bool CInstanceBlock::Open(const std::string& name)
{
    Close();
    m_name = "/" + name;
    const int file = shm_open(m_name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return false;
    m_handle = file;
    void* memory = MAP_FAILED;
    if (Prepare(file))
        memory = mmap(nullptr, sizeof(InstanceWords), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED) {
        Close();
        return false;
    }
    m_words = static_cast<InstanceWords*>(memory);
    return true;
}

bool CInstanceBlock::IsNamed() const
{
    struct stat info = {};
    return m_words && fstat(static_cast<int>(m_handle), &info) == 0 && info.st_nlink > 0;
}

void CInstanceBlock::RemoveName()
{
    if (m_words)
        shm_unlink(m_name.c_str());
}

void CInstanceBlock::Close()
{
    if (m_words)
        munmap(m_words, sizeof(InstanceWords));
    m_words = nullptr;
    if (m_handle >= 0)
        close(static_cast<int>(m_handle));
    m_handle = -1;
}
