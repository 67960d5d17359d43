#include "receipt_files.h"

#include <cerrno>
#include <system_error>

namespace virtual_printer
{

std::ofstream openForWriting(const std::string& path)
{
    std::ofstream file(path, std::ios::binary);
    if (!file) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    return file;
}

ReceiptFiles::ReceiptFiles(std::string stem, int widthDots, Glyphs* pictureGlyphs, Written written)
    : stem_(std::move(stem)),
      widthDots_(widthDots),
      glyphs_(pictureGlyphs),
      written_(std::move(written))
{
}

void ReceiptFiles::begin()
{
    if (begun_) {
        return;
    }
    begun_ = true;
    const std::string stem = stem_ + "-" + std::to_string(++number_);
    textPath_ = stem + ".txt";
    text_ = openForWriting(textPath_);
    if (glyphs_ != nullptr) {
        picture_.emplace(stem, widthDots_, *glyphs_);
    }
}

void ReceiptFiles::print(const Bitmap& dots, int advanceDots, std::string_view text)
{
    begin();
    text_ << text << '\n';
    if (picture_) {
        picture_->print(dots, advanceDots);
    }
}

void ReceiptFiles::feed(int dots)
{
    begin();
    if (picture_) {
        picture_->feed(dots);
    }
}

void ReceiptFiles::note(std::string_view text)
{
    begin();
    text_ << "[" << text << "]\n";
    if (picture_) {
        picture_->note(text);
    }
}

void ReceiptFiles::cut()
{
    if (begun_) { // two cuts in a row leave no receipt between them
        text_ << "- - - - - - - - - - cut - - - - - - - - - -\n";
        endReceipt(Picture::End::Cut);
    }
}

void ReceiptFiles::end()
{
    if (begun_) {
        endReceipt(Picture::End::Connection);
    }
}

void ReceiptFiles::endReceipt(Picture::End how)
{
    begun_ = false;
    text_.close();
    written_(textPath_);
    if (picture_) {
        for (const std::string& path : picture_->end(how)) {
            written_(path);
        }
        picture_.reset();
    }
}

} // namespace virtual_printer
