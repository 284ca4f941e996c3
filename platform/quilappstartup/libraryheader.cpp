#include <quilappstartup/libraryheader_p.h>

#include <QFile>

#if defined(Q_OS_LINUX)

#include <link.h>

#include <cstring>

/// The header of the library that holds this code, as the linker laid it out.
extern "C" const ElfW(Ehdr) __ehdr_start __attribute__((visibility("hidden")));

namespace {

struct MachineName
{
    int machine;
    const char* name;
};

const MachineName MACHINE_NAMES[] = {
    {EM_386, "x86"},      {EM_X86_64, "x86-64"}, {EM_ARM, "ARM"},    {EM_AARCH64, "ARM64"},
    {EM_RISCV, "RISC-V"}, {EM_PPC64, "PPC64"},   {EM_S390, "S/390"},
};

QString machineName(int machine)
{
    for (const MachineName& entry : MACHINE_NAMES) {
        if (entry.machine == machine)
            return QLatin1String(entry.name);
    }
    return QString("machine type %1").arg(machine);
}

QString builtFor(const ElfW(Ehdr) & header)
{
    const bool isWide = header.e_ident[EI_CLASS] == ELFCLASS64;
    const bool isLittle = header.e_ident[EI_DATA] == ELFDATA2LSB;
    const quint16 machine = isLittle == (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
                                ? header.e_machine
                                : quint16(header.e_machine << 8 | header.e_machine >> 8);
    return QString("%1, %2 bits, %3 endian")
        .arg(machineName(machine), QLatin1String(isWide ? "64" : "32"),
             QLatin1String(isLittle ? "little" : "big"));
}

bool isForThisMachine(const ElfW(Ehdr) & header)
{
    return std::memcmp(header.e_ident, __ehdr_start.e_ident, EI_VERSION) == 0 &&
           header.e_machine == __ehdr_start.e_machine;
}

// The end of a piece of the file; the sum of two numbers out of a file may overflow.
quint64 endOf(quint64 offset, quint64 size)
{
    return offset > Q_UINT64_C(0xffffffffffffffff) - size ? Q_UINT64_C(0xffffffffffffffff) : offset + size;
}

bool isSharedObject(const ElfW(Ehdr) & header)
{
    return header.e_type == ET_DYN && header.e_phentsize == sizeof(ElfW(Phdr));
}

quint64 endOfTables(const ElfW(Ehdr) & header)
{
    return qMax(endOf(header.e_phoff, quint64(header.e_phnum) * header.e_phentsize),
                endOf(header.e_shoff, quint64(header.e_shnum) * header.e_shentsize));
}

// The loader maps segments without looking at the file's size, and touching a page behind its end is fatal.
quint64 endOfSegments(const QByteArray& table)
{
    quint64 end = 0;
    for (int i = 0; i + int(sizeof(ElfW(Phdr))) <= table.size(); i += int(sizeof(ElfW(Phdr)))) {
        ElfW(Phdr) segment;
        std::memcpy(&segment, table.constData() + i, sizeof segment);
        if (segment.p_type != PT_NULL)
            end = qMax(end, endOf(segment.p_offset, segment.p_filesz));
    }
    return end;
}

} // namespace

LibraryHeader readLibraryHeader(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {LIBRARY_UNREADABLE, file.errorString(), QString()};
    const QByteArray start = file.read(sizeof(ElfW(Ehdr)));
    if (!start.startsWith(ELFMAG))
        return {LIBRARY_NO_LIBRARY, QString(), QString()};
    ElfW(Ehdr) header = {};
    std::memcpy(&header, start.constData(), size_t(start.size()));
    if (start.size() == int(sizeof header) && !isForThisMachine(header))
        return {LIBRARY_OTHER_MACHINE, builtFor(header), builtFor(__ehdr_start)};
    if (start.size() == int(sizeof header) && !isSharedObject(header))
        return {LIBRARY_NO_LIBRARY, QString(), QString()};
    const quint64 tables = qMax<quint64>(sizeof header, endOfTables(header));
    if (quint64(file.size()) < tables)
        return {LIBRARY_TRUNCATED, QString::number(file.size()), QString::number(tables)};
    file.seek(qint64(header.e_phoff));
    const quint64 end = qMax(tables, endOfSegments(file.read(header.e_phnum * header.e_phentsize)));
    if (quint64(file.size()) < end)
        return {LIBRARY_TRUNCATED, QString::number(file.size()), QString::number(end)};
    return {};
}

#else

LibraryHeader readLibraryHeader(const QString&)
{
    return {};
}

#endif
