boats <- data.frame(type = c("dinghy", "ketch, \"blue\"", "Jolle", "sloop"), length = c(4.2, 12.75, NA, 9.5),
                    crew = c(2L, 4L, 1L, NA), sails = c(11.5, 78.25, 7, 46.125), row.names = c("Ida", "Albatros", "Möwe 2", "Wal"))
write.csv(boats, "write_csv.csv")
write.csv2(boats, "write_csv2.csv")
write.table(boats, "write_table.txt")
write.table(boats[c("length", "sails")], "write_table_tab.txt", sep = "\t", dec = ",", quote = FALSE)
