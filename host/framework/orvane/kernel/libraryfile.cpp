// SPDX-License-Identifier: MIT
#include <orvane/kernel/libraryfile.h>

#if defined(__linux__) && defined(__LP64__)

#    include <QFile>

#    include <cstring>

#    include <elf.h>

namespace orvane {

namespace {

template <typename T>
bool readAt(QFile *file, quint64 place, T *value)
{
    return file->seek(qint64(place))
           && file->read(reinterpret_cast<char *>(value), qint64(sizeof(T))) == qint64(sizeof(T));
}

bool isOurFormat(const Elf64_Ehdr &header)
{
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0
           && header.e_ident[EI_CLASS] == ELFCLASS64 && header.e_phentsize == sizeof(Elf64_Phdr);
}

} // namespace

bool isCutOff(const QString &libraryFile)
{
    QFile file(libraryFile);
    Elf64_Ehdr header;
    if (!file.open(QIODevice::ReadOnly) || !readAt(&file, 0, &header) || !isOurFormat(header))
        return false;
    const auto size = quint64(file.size());
    for (int i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment;
        if (!readAt(&file, header.e_phoff + quint64(i) * sizeof(segment), &segment))
            return true;
        if (segment.p_type == PT_LOAD
            && (segment.p_offset > size || segment.p_filesz > size - segment.p_offset))
            return true;
    }
    return false;
}

} // namespace orvane

#else

namespace orvane {

bool isCutOff(const QString &)
{
    return false;
}

} // namespace orvane

#endif
