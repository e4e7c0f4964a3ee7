# Prepares a header for Doxygen: the comment that it begins with becomes that of the file. Copies and moves that do
# what the language says need no comment.
FNR == 1 && /^\/\/ / { print "/// \\file"; in_comment = 1 }
!/^\/\// { in_comment = 0 }
in_comment { sub(/^\/\//, "///") }
/\((const )?[A-Za-z_]+(&|&&)\) (noexcept )?= default;$/ { print ""; next }
{ print }
