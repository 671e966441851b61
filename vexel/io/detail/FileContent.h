#pragma once

#include <memory>
#include <string>

#include <QFile>

/** The bytes of a file: mapped, or unpacked when it is compressed with gzip. */
class FileContent {
public:
    /** Null, with a reason in @p error, when the file cannot be read. */
    static std::unique_ptr<FileContent> open(const QString& fileName, std::string& error);

    const char* data() const { return m_data; }
    std::size_t size() const { return m_size; }

private:
    bool map(std::string& error);
    bool unpack(std::string& error);

    QFile m_file;
    std::string m_unpacked;
    const char* m_data = nullptr;
    std::size_t m_size = 0;
};
