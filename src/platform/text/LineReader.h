#pragma once

#include <istream>
#include <string_view>
#include <vector>

namespace Tevra {

/// The lines of a text file, one after the other, as views into one buffer that slides over the
/// file: the memory does not grow with the file, only with its longest line.
class CLineReader {
public:
    /// No line of the files read here comes near this; what has a longer one is no text.
    static constexpr std::size_t kLongestLine = std::size_t{16} << 20;

    explicit CLineReader(std::istream& stream);

    /// Goes to the next line, which comes without its line end (LF or CR LF) and without blanks at
    /// its end. The view holds until the next call. False, with an empty line, at the end of the
    /// file and when reading fails.
    bool Next(std::string_view& line);

    /// Lines read so far, thus the number of the line that came last.
    int Number() const { return m_number; }

    /// Why there are no more lines, when that is not the end of the file; else empty.
    std::string_view Error() const { return m_error; }

private:
    bool Refill();
    std::string_view Take(std::size_t length);

    std::istream& m_stream;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;  ///< what is not yet handed out lies at m_begin .. m_end
    std::size_t m_end = 0;
    int m_number = 0;
    std::string_view m_error;
};

}  // namespace Tevra
