#include <Utilities/StreamHelper.h>

#include <Platform/CodePage.h>

#include <cstring>
#include <deque>
#include <istream>
#include <string>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr std::size_t c_pieceSize = 1024 * 1024;

std::string ReadPiece(std::istream& stream)
{
    std::string piece(c_pieceSize, '\0');
    stream.read(piece.data(), static_cast<std::streamsize>(c_pieceSize));
    piece.resize(static_cast<std::size_t>(stream.gcount()));
    return piece;
}

/// Frees each piece once it is copied, so that the whole is hardly ever held twice.
template <class T, class Piece>
std::unique_ptr<SizedArray<T>> Join(std::deque<Piece> pieces)
{
    static_assert(sizeof(T) == sizeof(typename Piece::value_type));
    std::size_t size = 0;
    for (Piece const& piece : pieces)
        size += piece.size();
    auto result = std::make_unique<SizedArray<T>>(size);
    for (T* target = result->GetData(); !pieces.empty(); pieces.pop_front())
    {
        std::memcpy(target, pieces.front().data(), pieces.front().size() * sizeof(T));
        target += pieces.front().size();
    }
    return result;
}

} // namespace

std::unique_ptr<SizedArray<unsigned char>> StreamHelper::ReadAllBytes(std::istream& stream)
{
    std::deque<std::string> pieces;
    do
        pieces.push_back(ReadPiece(stream));
    while (stream.good());
    return Join<unsigned char>(std::move(pieces));
}

std::unique_ptr<SizedArray<wchar_t>> StreamHelper::ReadUTF16FromCurrentCodePage(std::istream& stream)
{
    std::deque<std::wstring> pieces;
    do
    {
        std::string const piece = ReadPiece(stream);
        pieces.push_back(piece.empty() ? std::wstring() : Platform::DecodeCodePage(piece));
    } while (stream.good());
    return Join<wchar_t>(std::move(pieces));
}

} // namespace Vek::Framework::Utilities
