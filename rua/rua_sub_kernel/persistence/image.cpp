// Streams as bytes, in a file or in memory. One writer and one reader; a sink or a source
// says where the bytes go or come from.
#include <stdio.h>
#include <string.h>

#include "base/export.hpp"
#include "ork/serv.h"
#include "rua_sub_kernel/quasi/streams.hpp"
#include "rua_sub_kernel/service/chunks.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

struct Header {
  uint8_t version;  // in the other order of the first word: 'R', 'N', 'G', version
  uint8_t magic[3];
  uint16_t header_size;
  uint16_t state_size;  // low 16 bits, as chunk_count
  uint16_t chunk_count;
  uint16_t reserved;
  int32_t brng;
};
static_assert(sizeof(Header) == 16);

constexpr uint8_t kVersion = 1;
constexpr uint32_t kMagic = 0x474E52;  // "RNG", little-endian

// What precedes a chunk's payload; images of version 0 have no key.
constexpr uint32_t kKeyBytes = sizeof RuaChunk{}.sharedId;
constexpr uint32_t kChunkHead = sizeof(uint32_t) + kKeyBytes + sizeof(uint32_t);

struct FileSink {
  FILE* file;
  bool operator()(const void* data, uint32_t size) {
    return size == 0 || fwrite(data, size, 1, file) == 1;
  }
};
struct MemorySink {
  uint8_t* at;
  bool operator()(const void* data, uint32_t size) {
    if (size != 0) memcpy(at, data, size);
    at += size;
    return true;
  }
};

struct FileSource {
  static constexpr int32_t kBadFormat = RUA_STATUS_BAD_FILE_FORMAT;
  static constexpr int32_t kBadVersion = RUA_STATUS_BAD_FILE_VERSION;
  FILE* file;
  bool operator()(void* data, uint32_t size) {
    return size == 0 || fread(data, size, 1, file) == 1;
  }
};
struct MemorySource {
  static constexpr int32_t kBadFormat = RUA_STATUS_BAD_MEMORY_FORMAT;
  static constexpr int32_t kBadVersion = RUA_STATUS_BAD_MEMORY_FORMAT;
  const uint8_t* at;
  bool operator()(void* data, uint32_t size) {
    if (size != 0) memcpy(data, at, size);
    at += size;
    return true;
  }
};

Header header_of(const RuaStream* stream) {
  return {.version = kVersion,
          .magic = {'R', 'N', 'G'},
          .header_size = sizeof(Header),
          .state_size = uint16_t(state_bytes(properties(stream))),
          .chunk_count = uint16_t(__ruaGetNumChunks(stream)),
          .reserved = 0,
          .brng = stream->brng};
}

template <class Sink>
bool write_chunk(Sink& put, const RuaChunk* c) {
  return put(&c->chunkId, sizeof c->chunkId) && put(c->sharedId, sizeof c->sharedId) &&
         put(&c->size, sizeof c->size) && put(c->data, c->size);
}

template <class Sink>
int32_t save(Sink put, const RuaStream* stream, const Header& header) {
  bool good = put(&header, sizeof header) && put(stream + 1, state_bytes(properties(stream)));
  for (const RuaChunk* c = stream->chunks; good && c; c = c->next) good = write_chunk(put, c);
  return good ? RUA_STATUS_OK : RUA_STATUS_FILE_WRITE;
}

template <class Source>
int32_t check(const Header& header) {
  uint32_t word;
  memcpy(&word, &header, sizeof word);
  if (word >> 8 != kMagic && (word & 0xFFFFFF) != kMagic) return Source::kBadFormat;
  if (header.version > kVersion && header.magic[2] > kVersion) return Source::kBadVersion;
  RuaBrngProperties row;
  if (__ruaGetBrngProperties(header.brng, &row) < 0 ||
      header.state_size != uint16_t(state_bytes(row)) || header.header_size < sizeof(Header))
    return Source::kBadFormat;
  return RUA_STATUS_OK;
}

template <class Source>
int32_t read_chunk(Source& get, RuaStream* stream, uint8_t version) {
  uint32_t id, size, key[4] = {};
  if (version > kVersion || !get(&id, sizeof id) || (version == 1 && !get(key, sizeof key)) ||
      !get(&size, sizeof size))
    return RUA_STATUS_FILE_READ;
  if (size < least_chunk_size(id)) return Source::kBadFormat;
  void* data = ork_serv_allocate(size, kAlignment);
  if (!data) return RUA_STATUS_NO_MEMORY;
  if (!get(data, size)) {
    ork_serv_deallocate(data);
    return RUA_STATUS_FILE_READ;
  }
  return give_chunk(stream, id, key, data, size);
}

// Makes *stream, which may be left unfinished on a failure.
template <class Source>
int32_t load(Source get, RuaStream** stream) {
  Header header;
  if (!get(&header, sizeof header)) return RUA_STATUS_FILE_READ;
  int32_t status = check<Source>(header);
  if (status < 0) return status;
  int32_t row, offset;
  RuaBrngProperties* table = __ruaGetBrngBaseOffset(header.brng, &row, &offset);
  status = __ruaAllocateStream(stream, table, header.brng, row, offset);
  if (status < 0) return status;
  if (!get(*stream + 1, state_bytes(table[row]))) return RUA_STATUS_FILE_READ;
  if (header.brng == RUA_BRNG_NONDETERM && !__ruaCPUisRDRAND())
    return RUA_STATUS_NO_HARDWARE_RANDOM;
  for (int32_t i = 0; i < header.chunk_count && status == RUA_STATUS_OK; ++i)
    status = read_chunk(get, *stream, header.version);
  return status == RUA_STATUS_OK && !has_sound_tables(*stream) ? Source::kBadFormat : status;
}

// A file name as a terminated string: the caller's own, or a copy of `len` characters.
class FileName {
 public:
  FileName(const char* name, int32_t len) : name_(name) {
    if (len < 0) return;
    copy_ = static_cast<char*>(ork_serv_allocate(uint32_t(len) + 1, kAlignment));
    if (copy_) {
      memcpy(copy_, name, len);
      copy_[len] = 0;
    }
    name_ = copy_;
  }
  ~FileName() {
    if (copy_) ork_serv_deallocate(copy_);
  }
  FileName(const FileName&) = delete;
  const char* get() const { return name_; }  // null: no memory

 private:
  const char* name_;
  char* copy_ = nullptr;
};

// Opens the file, lets `work` have it, closes it.
template <class Work>
int32_t with_file(const char* name, int32_t len, const char* mode, Work work) {
  const FileName path(name, len);
  if (!path.get()) return RUA_STATUS_NO_MEMORY;
  FILE* file = fopen(path.get(), mode);
  if (!file) return RUA_STATUS_FILE_OPEN;
  const int32_t status = work(file);
  return fclose(file) == 0 ? status : RUA_STATUS_FILE_CLOSE;
}

int32_t drop_if_failed(int32_t status, RuaStream** stream) {
  if (status < 0) __ruaDeleteStream(stream);
  return status;
}

}  // namespace

ORK_EXPORT int32_t __ruaSaveStreamF(const RuaStream* stream, const char* name, int32_t len) {
  return with_file(name, len, "wb",
                   [=](FILE* file) { return save(FileSink{file}, stream, header_of(stream)); });
}

ORK_EXPORT int32_t __ruaLoadStreamF(RuaStream** stream, const char* name, int32_t len) {
  *stream = nullptr;
  const int32_t status =
      with_file(name, len, "rb", [=](FILE* file) { return load(FileSource{file}, stream); });
  return drop_if_failed(status, stream);
}

ORK_EXPORT int32_t __ruaSaveStreamM(const RuaStream* stream, void* memptr) {
  return save(MemorySink{static_cast<uint8_t*>(memptr)}, stream, header_of(stream));
}

ORK_EXPORT int32_t __ruaLoadStreamM(RuaStream** stream, const void* memptr) {
  *stream = nullptr;
  return drop_if_failed(load(MemorySource{static_cast<const uint8_t*>(memptr)}, stream), stream);
}

ORK_EXPORT int32_t __ruaGetStreamSize(const RuaStream* stream) {
  uint32_t size = sizeof(Header) + state_bytes(properties(stream));
  for (const RuaChunk* c = stream->chunks; c; c = c->next) size += kChunkHead + c->size;
  return int32_t(size);
}
