#include "cli/FileTagsReport.h"

#include <cerrno>

#include "base/Failure.h"
#include "base/Paths.h"
#include "core/FileEntry.h"
#include "media/Crc32.h"
#include "media/ExifInfos.h"
#include "media/Mp3Infos.h"
#include "structure/FileTagSteps.h"
#include "structure/StructureEngine.h"

namespace nomra::cli {

namespace {

std::string YesNo(bool value) { return value ? "yes" : "no"; }

FileTagsReport::Fields MpegFields(const media::Mp3Infos& infos) {
  const media::MpegHeader& h = infos.Header();
  return {
      {"position", std::to_string(h.headerPosition)},
      {"version", media::VersionText(h.version)},
      {"layer", media::LayerText(h.layer)},
      {"bitrate", std::to_string(infos.BitrateKbps()) + " kbit/s"},
      {"frequency", std::to_string(h.frequency) + " Hz"},
      {"channel mode", media::ChannelModeText(h.channelMode)},
      {"mode extension", std::to_string(h.channelModeExtension)},
      {"emphasis", media::EmphasisText(h.emphasis)},
      {"crc protected", YesNo(h.crcProtected)},
      {"padding", YesNo(h.padding)},
      {"private", YesNo(h.privateBit)},
      {"copyright", YesNo(h.copyright)},
      {"original", YesNo(h.original)},
      {"file size", std::to_string(h.fileSize)},
      {"frame size", std::to_string(h.frameSize)},
      {"frames", std::to_string(h.frames)},
      {"seconds", std::to_string(h.seconds)},
  };
}

FileTagsReport::Fields Id3v1Fields(const media::Mp3Infos& infos) {
  const std::string genre = infos.Id3GenreV1();
  const char* name = media::Id3v1GenreName(std::stoi(genre));
  return {
      {"title", infos.Id3SongTitleV1()},
      {"artist", infos.Id3ArtistV1()},
      {"album", infos.Id3AlbumV1()},
      {"year", infos.Id3YearV1()},
      {"comment", infos.Id3CommentV1()},
      {"track", infos.Id3TrackV1()},
      {"genre", name != nullptr ? genre + " (" + name + ")" : genre},
  };
}

// Text frames and links show their text; other frames (pictures, private
// data) their length, as their bytes would mean nothing on a terminal.
bool IsTextFrame(const std::string& id) {
  return !id.empty() && (id.front() == 'T' || id.front() == 'W' || id == "COMM" || id == "USLT");
}

FileTagsReport::Fields Id3v2Fields(const media::Mp3Infos& infos) {
  FileTagsReport::Fields fields = {{"version", std::to_string(infos.Id3v2Version())},
                                   {"size", std::to_string(infos.Id3v2Size())}};
  for (const auto& [id, raw] : infos.Frames()) {
    if (raw.empty()) continue;
    fields.emplace_back(id, IsTextFrame(id) ? infos.FrameText(id) : std::to_string(raw.size()) + " bytes");
  }
  if (!infos.Id3GenreV2().empty()) fields.emplace_back("genre", infos.Id3GenreV2());
  return fields;
}

FileTagsReport::Fields StructureTags(const media::Mp3Infos& infos) {
  FileTagsReport::Fields fields;
  for (const structure::Mp3Tag& tag : structure::Mp3Tags()) fields.emplace_back(tag.tag, (infos.*tag.value)());
  return fields;
}

FileTagsReport::Fields ExifFields(const media::ExifInfos& exif) {
  FileTagsReport::Fields fields;
  for (const media::ExifEntry& entry : exif.Entries()) {
    fields.emplace_back(
        std::to_string(entry.tag) + (entry.makerNote ? " (maker note)" : ""),
        "type " + std::to_string(entry.dataType) + ", count " + std::to_string(entry.count) + ": " + entry.Value());
  }
  return fields;
}

// What each EXIF tag gives, through the structure language itself, so the
// list shows exactly what a name would get.
void AddExifTags(platform::FileSystem& files, const std::string& path, FileTagsReport::Fields& tags) {
  const structure::FileTagSteps readers(files);
  core::FileEntry row;
  row.key = path;
  row[core::kColNewName] = base::NameOf(path);
  for (const char* tag : {"<EXIF_Make>", "<EXIF_Model>", "<EXIF_ImageW>", "<EXIF_ImageH>", "<EXIF_XResolution>",
                          "<EXIF_YResolution>", "<EXIF_ImageNumber>", "<EXIF_ImageDescription>"}) {
    tags.emplace_back(tag, structure::EvaluateStructure(row, tag, readers));
  }
}

}  // namespace

FileTagsReport ReadFileTags(platform::FileSystem& files, const std::string& path) {
  FileTagsReport report;
  report.path = path;
  const platform::FileStatus status = files.Status(path);
  if (status.kind == platform::EntryKind::Missing) {
    report.fault = base::SystemErrorText(status.error != 0 ? status.error : ENOENT);
    return report;
  }
  if (status.kind == platform::EntryKind::Folder) {
    report.fault = "a folder, not a file";
    return report;
  }
  media::Mp3Infos infos;
  infos.GetFileInfos(files, path);
  if (infos.Header().bitrate != 0) report.mpeg = MpegFields(infos);
  if (infos.HasId3v1()) report.id3v1 = Id3v1Fields(infos);
  if (infos.HasId3v2()) report.id3v2 = Id3v2Fields(infos);
  report.tags = StructureTags(infos);
  media::ExifInfos exif;
  if (exif.Load(files, path) || exif.Loaded()) {
    report.exif = ExifFields(exif);
    AddExifTags(files, path, report.tags);
  }
  int error = 0;
  const std::optional<std::uint32_t> crc = media::FileCrc32(files, path, error);
  if (crc) {
    report.tags.emplace_back("<CRC32>", media::Crc32Hex(*crc));
    report.tags.emplace_back("<CRC32_D>", media::Crc32Decimal(*crc));
  } else {
    report.fault = base::SystemErrorText(error);
  }
  return report;
}

}  // namespace nomra::cli
