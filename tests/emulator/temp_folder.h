#pragma once
// A folder of the test's own under the system's temporary folder, removed with
// everything in it at the end, and whole-file reads and writes for comparing files
// byte for byte.

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

class TempFolder
{
public:
    TempFolder()
    {
        // Creating a name that is already taken fails, so draw again.
        std::random_device random;
        std::error_code ec;
        for (int attempt = 0; attempt < 100 && m_path.empty(); ++attempt) {
            const std::filesystem::path drawn = std::filesystem::temp_directory_path(ec) /
                                                ("skemu-test-" + std::to_string(random()));
            if (std::filesystem::create_directory(drawn, ec))
                m_path = drawn;
        }
    }
    ~TempFolder()
    {
        std::error_code ec;
        std::filesystem::remove_all(m_path, ec);
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    bool created() const { return !m_path.empty(); }
    std::string file(const char *name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

inline std::string readAll(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

inline void writeAll(const std::string &path, const std::string &text)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}
