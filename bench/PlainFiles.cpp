#include "bench/PlainFiles.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ballhaven::bench {

namespace {

constexpr mode_t permissions = 0644;

template <typename Number>
Number Checked(Number result) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return result;
}

/// An open file, closed at the end of its scope.
class PlainFile {
  public:
    PlainFile(const std::string& path, int flags) : handle(Checked(::open(path.c_str(), flags, permissions))) {}
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;
    ~PlainFile() { ::close(handle); }

    [[nodiscard]] int Handle() const { return handle; }

  private:
    int handle;
};

}  // namespace

std::string ReadPlainly(const std::string& path) {
    const PlainFile file(path, O_RDONLY);
    struct stat status = {};
    Checked(::fstat(file.Handle(), &status));
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    const auto count = Checked(::read(file.Handle(), bytes.data(), bytes.size()));
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

void SavePlainly(const std::string& directory, const std::string& name, std::string_view bytes,
                 const std::function<int(int file)>& flush) {
    const std::string path = directory + name;
    const std::string newPath = path + ".new";
    {
        const PlainFile file(newPath, O_WRONLY | O_CREAT | O_TRUNC);
        if (Checked(::write(file.Handle(), bytes.data(), bytes.size())) != std::ssize(bytes)) {
            throw std::system_error(ENOSPC, std::generic_category());
        }
        Checked(flush(file.Handle()));
    }
    Checked(std::rename(newPath.c_str(), path.c_str()));
    const PlainFile folder(directory, O_RDONLY | O_DIRECTORY);
    Checked(flush(folder.Handle()));
}

}  // namespace ballhaven::bench
