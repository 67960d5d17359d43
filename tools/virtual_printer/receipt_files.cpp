#include "receipt_files.h"

#include "files.h"

namespace virtual_printer
{

ReceiptFiles::ReceiptFiles(std::string stem, int widthDots, Glyphs* pictureGlyphs, Written written)
    : m_stem(std::move(stem)),
      m_widthDots(widthDots),
      m_glyphs(pictureGlyphs),
      m_written(std::move(written))
{
}

void ReceiptFiles::begin()
{
    if (m_begun) {
        return;
    }
    m_begun = true;
    const std::string stem = m_stem + "-" + std::to_string(++m_number);
    m_textPath = stem + ".txt";
    m_text = openForWriting(m_textPath);
    if (m_glyphs != nullptr) {
        m_picture.emplace(stem, m_widthDots, *m_glyphs);
    }
}

void ReceiptFiles::print(const Bitmap& dots, int advanceDots, std::string_view text)
{
    begin();
    m_text << text << '\n';
    if (m_picture) {
        m_picture->print(dots, advanceDots);
    }
}

void ReceiptFiles::feed(int dots)
{
    begin();
    if (m_picture) {
        m_picture->feed(dots);
    }
}

void ReceiptFiles::note(std::string_view text)
{
    begin();
    m_text << "[" << text << "]\n";
    if (m_picture) {
        m_picture->note(text);
    }
}

void ReceiptFiles::cut()
{
    if (m_begun) { // two cuts in a row leave no receipt between them
        m_text << "- - - - - - - - - - cut - - - - - - - - - -\n";
        endReceipt(Picture::End::Cut);
    }
}

void ReceiptFiles::end()
{
    if (m_begun) {
        endReceipt(Picture::End::Connection);
    }
}

void ReceiptFiles::endReceipt(Picture::End how)
{
    m_begun = false;
    closeWhole(m_text, m_textPath);
    m_written(m_textPath);
    if (m_picture) {
        for (const std::string& path : m_picture->end(how)) {
            m_written(path);
        }
        m_picture.reset();
    }
}

} // namespace virtual_printer
