# Whose header is whose, for check_layers.cmake. Qt's are looked up where Qt lies (QT_HEADERS).
set(library_headers
    "sqlite3\\.h" SQLite::SQLite3
    "SQLiteCpp/.*" SQLiteCpp
    "unicode/.*" ICU::uc
    "zip\\.h" PkgConfig::LIBZIP
    "pugixml\\.hpp" pugixml::pugixml
    "CLI/.*" CLI11::CLI11
    "nlohmann/.*" nlohmann_json::nlohmann_json
    "INIReader\\.h" PkgConfig::INIH
    # The standard library's have no ending; the system's are those of POSIX.
    "[a-z_]+" system
    "(fcntl|pwd|signal|spawn|stdlib|unistd)\\.h" system
    "sys/[a-z]+\\.h" system)

# What a library hands on with its own headers.
set(brought_by_SQLiteCpp SQLite::SQLite3)
set(brought_by_Qt6::Gui Qt6::Core)
set(brought_by_Qt6::Svg Qt6::Gui Qt6::Core)
set(brought_by_Qt6::Widgets Qt6::Gui Qt6::Core)
set(brought_by_Qt6::PrintSupport Qt6::Widgets Qt6::Gui Qt6::Core)

# The library that `header` is of, "system" for the language's and the system's; empty when nobody knows it.
function(library_of_header header result)
  set(${result} "" PARENT_SCOPE)
  if(header MATCHES "^Q")
    file(GLOB found ${QT_HEADERS}/Qt*/${header})
    if(found)
      list(GET found 0 first)
      cmake_path(GET first PARENT_PATH folder)
      cmake_path(GET folder FILENAME module)
      string(REGEX REPLACE "^Qt" "Qt6::" library ${module})
      set(${result} ${library} PARENT_SCOPE)
    endif()
    return()
  endif()
  set(patterns ${library_headers})
  while(patterns)
    list(POP_FRONT patterns pattern library)
    if(header MATCHES "^${pattern}$")
      set(${result} ${library} PARENT_SCOPE)
      return()
    endif()
  endwhile()
endfunction()
