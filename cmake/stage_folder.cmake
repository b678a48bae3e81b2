# Copies a folder's content into the staged program folder when the folder exists.
#   cmake -DSRC=<folder> -DDST=<program folder> -P stage_folder.cmake
if(EXISTS "${SRC}")
  file(COPY "${SRC}/" DESTINATION "${DST}")
endif()
