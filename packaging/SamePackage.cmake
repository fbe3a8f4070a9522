# Run by cpack when everything is in its temporary folder, so that the same program gives the same
# package, no matter when and by whom it is packed.

set(ENV{SOURCE_DATE_EPOCH} ${CPACK_SECONDS_OF_CHANGELOG})

# New folders have the permissions of the user's mask, which must not close /usr.
file(CHMOD_RECURSE ${CPACK_TEMPORARY_DIRECTORY} DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
