#include "render/decoded_pictures.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace terravane {

namespace {

constexpr int kLongestSide = 4096;
constexpr int kShorterSide = 1200;
constexpr qsizetype kMostBytes = 32 << 20;  // of pictures that nobody uses now
constexpr int kMostMegabytes = 512;         // while decoding: the largest picture that ReadPicture takes needs 400

const char* QtFormat(PictureFormat format)
{
    switch (format) {
        case PictureFormat::Jpeg:
            return "jpeg";
        case PictureFormat::Png:
            return "png";
        case PictureFormat::Bmp:
            return "bmp";
        case PictureFormat::Gif:
            return "gif";
        case PictureFormat::Ico:
            return "ico";
    }
    return "";
}

QSize ReducedFrom(QSize size)
{
    if (std::min(size.width(), size.height()) > kShorterSide)
        size.scale(kShorterSide, kShorterSide, Qt::KeepAspectRatioByExpanding);
    if (std::max(size.width(), size.height()) > kLongestSide)
        size.scale(kLongestSide, kLongestSide, Qt::KeepAspectRatio);
    return size.expandedTo({1, 1});
}

QImage Decode(const Picture& picture)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(picture.bytes.data()),
                                               static_cast<qsizetype>(picture.bytes.size()));
    QBuffer buffer(&bytes);
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImageReader reader(&buffer, QtFormat(picture.format));
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (const QSize size = ReducedFrom(whole); whole.isValid() && size != whole) reader.setScaledSize(size);
    return reader.read();
}

/// Remembers pictures that are in use, and of the others those used last, as many as fit.
class DecodedPictures {
  public:
    QImage Find(const std::shared_ptr<const Picture>& picture)
    {
        const std::scoped_lock lock(mutex_);
        const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return entry.first == picture || AreCopies(*entry.first, *picture);
        });
        if (known == entries_.end())
            entries_.insert(entries_.begin(), Entry(picture, Decode(*picture)));
        else
            std::rotate(entries_.begin(), known, known + 1);
        QImage image = entries_.front().second;
        EvictUnused();
        return image;
    }

  private:
    using Entry = std::pair<std::shared_ptr<const Picture>, QImage>;

    void EvictUnused()
    {
        qsizetype size = 0;
        std::erase_if(entries_, [&](const Entry& entry) {
            size += entry.second.sizeInBytes();
            return size > kMostBytes && entry.first.use_count() == 1;
        });
    }

    std::mutex mutex_;
    std::vector<Entry> entries_;  // used last in front
};

}  // namespace

QImage Decoded(const std::shared_ptr<const Picture>& picture)
{
    static DecodedPictures pictures;
    return pictures.Find(picture);
}

bool AreCopies(const Picture& one, const Picture& other)
{
    return one.format == other.format && one.bytes == other.bytes;
}

}  // namespace terravane
