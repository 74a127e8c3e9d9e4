# The sources that read, write and describe model files; they need nlohmann-json.
set(TARNWISE_MODEL_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/JsonSection.cpp
  ${CMAKE_CURRENT_LIST_DIR}/JsonValues.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModelCommands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModelFromJson.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModelToJson.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModelWarnings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModelWriter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/$<$<BOOL:${WIN32}>:windows/>NamedCodePage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SaveModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WholeFile.cpp
)
