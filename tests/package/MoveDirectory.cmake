# Moves the directory FROM to TO, replacing what is there.
file(REMOVE_RECURSE "${TO}")
file(RENAME "${FROM}" "${TO}")
