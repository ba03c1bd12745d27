string(REPLACE "|" ";" files "${FILES}")
set(entries "")
foreach(name IN LISTS files)
  file(READ ${SOURCE}/${name} text)
  # A string literal may be 64 KiB long; adjacent ones are joined.
  string(LENGTH "${text}" length)
  set(literal "")
  set(start 0)
  while(start LESS length)
    string(SUBSTRING "${text}" ${start} 8000 piece)
    string(APPEND literal "R\"~~(${piece})~~\"\n")
    math(EXPR start "${start} + 8000")
  endwhile()
  string(APPEND entries "    {\"${name}\",\n${literal}},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"sizewright/embedded/embedded_files.h\"

namespace sizewright {

std::span<const EmbeddedFile> embeddedFiles() {
  static constexpr EmbeddedFile kFiles[] = {
${entries}  };
  return kFiles;
}

}  // namespace sizewright
")
