#include "platform/bitmap.h"

#include <array>
#include <bit>

namespace cserko {

namespace {

constexpr std::size_t file_header = 14;
constexpr std::uint32_t info_header = 40;
constexpr std::uint32_t core_header = 12;
constexpr std::uint32_t longest_header = 124;

enum Coding : std::uint32_t { plain = 0, runs_of_bytes = 1, runs_of_halves = 2, masks = 3, masks_with_alpha = 6 };

// Little-endian numbers anywhere in the file; nothing outside is ever read.
class Bytes {
 public:
  explicit Bytes(std::string_view file) : file_(file) {}

  bool has(std::size_t at, std::size_t count) const { return at <= file_.size() && count <= file_.size() - at; }
  std::uint32_t byte(std::size_t at) const { return static_cast<std::uint8_t>(file_[at]); }
  std::uint32_t half(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
  std::uint32_t word(std::size_t at) const { return half(at) | half(at + 2) << 16; }
  std::int32_t number(std::size_t at) const { return static_cast<std::int32_t>(word(at)); }
  std::size_t size() const { return file_.size(); }

 private:
  std::string_view file_;
};

struct Header {
  int width = 0;
  int height = 0;
  bool top_down = false;
  std::uint32_t depth = 0;
  std::uint32_t coding = plain;
  std::size_t table = 0;       ///< Where the colour table begins.
  std::size_t table_entry = 4; ///< Bytes of one colour in it.
  std::size_t colors = 0;      ///< How many there are.
  std::size_t points = 0;      ///< Where the points begin.
  std::array<std::uint32_t, 3> mask{};

  std::size_t row_bytes() const { return (static_cast<std::size_t>(width) * depth + 31) / 32 * 4; }
};

bool known_coding(const Header& header) {
  switch (header.coding) {
  case plain:
    return header.depth == 1 || header.depth == 4 || header.depth == 8 || header.depth == 16 || header.depth == 24 ||
           header.depth == 32;
  case runs_of_bytes:
    return header.depth == 8 && !header.top_down;
  case runs_of_halves:
    return header.depth == 4 && !header.top_down;
  case masks:
  case masks_with_alpha:
    return header.depth == 16 || header.depth == 32;
  default:
    return false;
  }
}

bool read_size(const Bytes& bytes, std::uint32_t length, Header& header) {
  std::int64_t width = 0;
  std::int64_t height = 0;
  if (length == core_header) {
    width = bytes.half(file_header + 4);
    height = bytes.half(file_header + 6);
    header.depth = bytes.half(file_header + 10);
    header.table_entry = 3;
  } else {
    width = bytes.number(file_header + 4);
    height = bytes.number(file_header + 8);
    header.depth = bytes.half(file_header + 14);
    header.coding = bytes.word(file_header + 16);
  }
  header.top_down = height < 0;
  if (height < 0) height = -height;
  if (width <= 0 || height <= 0 || width > most_bitmap_points || height > most_bitmap_points / width) return false;
  header.width = static_cast<int>(width);
  header.height = static_cast<int>(height);
  return true;
}

bool read_masks(const Bytes& bytes, std::uint32_t length, Header& header) {
  if (header.coding == masks || header.coding == masks_with_alpha) {
    const std::size_t at = file_header + info_header;
    if (!bytes.has(at, 12)) return false;
    header.mask = {bytes.word(at), bytes.word(at + 4), bytes.word(at + 8)};
    if (length == info_header) header.table += header.coding == masks ? 12 : 16;
  } else if (header.depth == 16) {
    header.mask = {0x7C00, 0x03E0, 0x001F};
  } else {
    header.mask = {0xFF0000, 0x00FF00, 0x0000FF};
  }
  return true;
}

std::optional<Header> read_header(const Bytes& bytes) {
  if (!bytes.has(0, file_header + 4) || bytes.half(0) != 0x4D42) return std::nullopt;
  const std::uint32_t length = bytes.word(file_header);
  if ((length != core_header && length < info_header) || length > longest_header) return std::nullopt;
  if (!bytes.has(file_header, length)) return std::nullopt;
  Header header;
  if (!read_size(bytes, length, header) || !known_coding(header)) return std::nullopt;
  header.table = file_header + length;
  if (!read_masks(bytes, length, header)) return std::nullopt;
  header.points = bytes.word(10);
  if (header.depth <= 8) {
    const std::size_t all = std::size_t{1} << header.depth;
    const std::size_t named = length == core_header ? 0 : bytes.word(file_header + 32);
    header.colors = named == 0 || named > all ? all : named;
    // Some programs write a shorter table than they say; the points begin where it ends.
    if (header.points >= header.table && header.points <= bytes.size())
      header.colors = std::min(header.colors, (header.points - header.table) / header.table_entry);
    if (header.colors == 0 || !bytes.has(header.table, header.colors * header.table_entry)) return std::nullopt;
  }
  return header;
}

Color table_color(const Bytes& bytes, const Header& header, std::size_t index) {
  if (index >= header.colors) return black;
  const std::size_t at = header.table + index * header.table_entry;
  return {static_cast<std::uint8_t>(bytes.byte(at + 2)), static_cast<std::uint8_t>(bytes.byte(at + 1)),
          static_cast<std::uint8_t>(bytes.byte(at))};
}

std::uint8_t masked(std::uint32_t point, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int shift = std::countr_zero(mask);
  const std::uint64_t most = mask >> shift;
  return static_cast<std::uint8_t>((std::uint64_t{(point & mask) >> shift} * 255 + most / 2) / most);
}

Color plain_color(const Bytes& bytes, const Header& header, std::size_t row, std::size_t x) {
  switch (header.depth) {
  case 1:
  case 4:
  case 8: {
    const std::size_t bit = x * header.depth;
    const std::uint32_t shift = 8 - header.depth - static_cast<std::uint32_t>(bit % 8);
    return table_color(bytes, header, bytes.byte(row + bit / 8) >> shift & ((1U << header.depth) - 1));
  }
  case 24: {
    const std::size_t at = row + 3 * x;
    return {static_cast<std::uint8_t>(bytes.byte(at + 2)), static_cast<std::uint8_t>(bytes.byte(at + 1)),
            static_cast<std::uint8_t>(bytes.byte(at))};
  }
  default: {
    const std::uint32_t point = header.depth == 16 ? bytes.half(row + 2 * x) : bytes.word(row + 4 * x);
    return {masked(point, header.mask[0]), masked(point, header.mask[1]), masked(point, header.mask[2])};
  }
  }
}

bool read_plain(const Bytes& bytes, const Header& header, PixelImage& image) {
  const std::size_t row_bytes = header.row_bytes();
  if (!bytes.has(header.points, row_bytes * static_cast<std::size_t>(header.height))) return false;
  for (int y = 0; y < header.height; ++y) {
    const int from_file_start = header.top_down ? y : header.height - 1 - y;
    const std::size_t row = header.points + row_bytes * static_cast<std::size_t>(from_file_start);
    for (int x = 0; x < header.width; ++x)
      image.at(x, y) = plain_color(bytes, header, row, static_cast<std::size_t>(x));
  }
  return true;
}

/// Reads runs of points of one or two colours, from the bottom row up.
class RunReader {
 public:
  RunReader(const Bytes& bytes, const Header& header, PixelImage& image)
      : bytes_(bytes), header_(header), image_(image), at_(header.points), y_(header.height - 1) {}

  bool read() {
    while (bytes_.has(at_, 2)) {
      const std::uint32_t count = bytes_.byte(at_);
      const std::uint32_t value = bytes_.byte(at_ + 1);
      at_ += 2;
      if (count > 0) {
        for (std::uint32_t i = 0; i < count; ++i) put(header_.depth == 8 ? value : half_of(value, i));
      } else if (value == 1) {
        return true;
      } else if (!escape(value)) {
        return false;
      }
    }
    return false;
  }

 private:
  static std::uint32_t half_of(std::uint32_t byte, std::uint32_t index) {
    return index % 2 == 0 ? byte >> 4 : byte & 15U;
  }

  void put(std::uint32_t index) {
    if (image_.contains(x_, y_)) image_.at(x_, y_) = table_color(bytes_, header_, index);
    if (x_ < header_.width) ++x_;
  }

  bool escape(std::uint32_t value) {
    if (value == 0) {
      x_ = 0;
      if (y_ >= 0) --y_;
      return true;
    }
    if (value == 2) {
      if (!bytes_.has(at_, 2)) return false;
      x_ = std::min(header_.width, x_ + static_cast<int>(bytes_.byte(at_)));
      y_ = std::max(-1, y_ - static_cast<int>(bytes_.byte(at_ + 1)));
      at_ += 2;
      return true;
    }
    const std::size_t used = header_.depth == 8 ? value : (value + 1) / 2;
    if (!bytes_.has(at_, used)) return false;
    for (std::uint32_t i = 0; i < value; ++i)
      put(header_.depth == 8 ? bytes_.byte(at_ + i) : half_of(bytes_.byte(at_ + i / 2), i));
    at_ += used + used % 2;
    return true;
  }

  const Bytes& bytes_;
  const Header& header_;
  PixelImage& image_;
  std::size_t at_;
  int x_ = 0;
  int y_;
};

void append_number(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>(value >> 8 * i & 0xFFU));
}

} // namespace

std::string write_bitmap(const PixelImage& image) {
  constexpr std::uint32_t depth = 24;
  constexpr std::uint32_t points_a_metre = 3780; // 96 to the inch
  const std::size_t row_bytes = (static_cast<std::size_t>(image.width) * 3 + 3) / 4 * 4;
  const std::size_t point_bytes = row_bytes * static_cast<std::size_t>(image.height);
  std::string bytes = "BM";
  bytes.reserve(file_header + info_header + point_bytes);
  append_number(bytes, static_cast<std::uint32_t>(file_header + info_header + point_bytes), 4);
  append_number(bytes, 0, 4);
  append_number(bytes, file_header + info_header, 4);
  append_number(bytes, info_header, 4);
  append_number(bytes, static_cast<std::uint32_t>(image.width), 4);
  append_number(bytes, static_cast<std::uint32_t>(image.height), 4);
  append_number(bytes, 1, 2);
  append_number(bytes, depth, 2);
  append_number(bytes, plain, 4);
  append_number(bytes, static_cast<std::uint32_t>(point_bytes), 4);
  append_number(bytes, points_a_metre, 4);
  append_number(bytes, points_a_metre, 4);
  append_number(bytes, 0, 4);
  append_number(bytes, 0, 4);
  std::string row(row_bytes, '\0');
  for (int y = image.height - 1; y >= 0; --y) {
    char* part = row.data();
    for (int x = 0; x < image.width; ++x) {
      const Color color = image.at(x, y);
      *part++ = static_cast<char>(color.blue);
      *part++ = static_cast<char>(color.green);
      *part++ = static_cast<char>(color.red);
    }
    bytes += row;
  }
  return bytes;
}

std::optional<PixelImage> read_bitmap(std::string_view file) {
  const Bytes bytes(file);
  const std::optional<Header> header = read_header(bytes);
  if (!header || header->points < header->table || header->points > bytes.size()) return std::nullopt;
  // A coded point takes at least some bytes of the file: a small file that claims to be huge gets no memory.
  const bool coded = header->coding == runs_of_bytes || header->coding == runs_of_halves;
  const auto count = static_cast<std::size_t>(header->width) * static_cast<std::size_t>(header->height);
  if (coded && count / 256 > bytes.size() * 16) return std::nullopt;
  if (!coded && !bytes.has(header->points, header->row_bytes() * static_cast<std::size_t>(header->height)))
    return std::nullopt;
  PixelImage image{header->width, header->height, {}};
  image.pixels.assign(count, coded ? table_color(bytes, *header, 0) : white);
  const bool whole = coded ? RunReader(bytes, *header, image).read() : read_plain(bytes, *header, image);
  if (!whole) return std::nullopt;
  return image;
}

} // namespace cserko
