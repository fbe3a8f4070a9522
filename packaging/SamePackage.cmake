# Run by cpack when everything is in its temporary folder: the same program gives the same package,
# whenever it is packed and whoever does it.

set(ENV{SOURCE_DATE_EPOCH} ${CPACK_SECONDS_OF_CHANGELOG})

# New folders got the user's mask, and /usr must not be closed by it.
file(CHMOD_RECURSE ${CPACK_TEMPORARY_DIRECTORY} DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
